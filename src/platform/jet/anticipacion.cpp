#include "platform/jet/anticipacion.h"

#include <algorithm>

namespace kestrane::jet {

using namespace enlazado;

namespace {

bool esElLiteral(const Expresion& expresion, int literal)
{
    const auto* parametro = std::get_if<Parametro>(&expresion.dato);
    return parametro && parametro->literal == literal;
}

/// The whole-number column of "column = literal" or "literal = column", if that is what the condition says.
std::optional<enlazado::Columna> claveDe(const Expresion& condicion, int literal)
{
    const auto* comparacion = std::get_if<Comparacion>(&condicion.dato);
    if (!comparacion || comparacion->operador != OperadorComparacion::Igual || comparacion->familia != Familia::Numero)
        return std::nullopt;
    const bool aLaDerecha = esElLiteral(*comparacion->derecha, literal);
    const Expresion& otra = aLaDerecha ? *comparacion->izquierda : *comparacion->derecha;
    const Expresion& escrita = aLaDerecha ? *comparacion->derecha : *comparacion->izquierda;
    const auto* columna = std::get_if<enlazado::Columna>(&otra.dato);
    if (!columna || !esElLiteral(escrita, literal) || std::get<Parametro>(escrita.dato).negado)
        return std::nullopt;
    return esEntero(otra.tipo) && escrita.tipo == TipoColumna::Entero32 ? std::optional{*columna} : std::nullopt;
}

/// Takes the conditions that AND joins at the top apart, in their order.
void separa(ExpresionPtr condicion, std::vector<ExpresionPtr>& destino)
{
    auto* logica = std::get_if<Logica>(&condicion->dato);
    if (!logica || logica->operador != OperadorLogico::Y) {
        destino.push_back(std::move(condicion));
        return;
    }
    ExpresionPtr derecha = std::move(logica->derecha);
    separa(std::move(logica->izquierda), destino);
    separa(std::move(derecha), destino);
}

ExpresionPtr junta(std::vector<ExpresionPtr> condiciones)
{
    ExpresionPtr todas = std::move(condiciones.front());
    for (auto una = condiciones.begin() + 1; una != condiciones.end(); ++una) {
        const ast::Lugar lugar = todas->lugar;
        todas = nodo(Logica{OperadorLogico::Y, std::move(todas), std::move(*una)}, TipoColumna::SiNo, lugar);
    }
    return todas;
}

bool esConsultaLlana(const Consulta& consulta)
{
    return consulta.ordenFinal == OrdenFinal::PorFilas && consulta.filas == Filas::Todas && consulta.grupos.empty() &&
           !consulta.limite && consulta.donde;
}

/// Marks behind the list of keys would not leave it last.
bool ordenaPorLiterales(const Consulta& consulta)
{
    const auto esMarca = [](const Expresion& e) { return e.esParametro(); };
    return std::ranges::any_of(consulta.orden, [&](const Clave& clave) {
        return alguna(clave.expresion ? *clave.expresion : *consulta.lista[static_cast<size_t>(clave.salida) - 1].expresion,
                      esMarca);
    });
}

ExpresionPtr enClaves(enlazado::Columna columna, const Tabla& tabla, int literal, int claves)
{
    EnLista en;
    en.lista.reserve(static_cast<size_t>(claves));
    en.valor = nodo(columna, tabla.columnas[static_cast<size_t>(columna.columna)].tipo, {});
    for (int i = 0; i < claves; ++i)
        en.lista.push_back(
            nodo(Parametro{.literal = literal, .negado = false, .ancho = 0, .columna = {}}, TipoColumna::Entero32, {}));
    return nodo(std::move(en), TipoColumna::SiNo, {});
}

} // namespace

std::optional<enlazado::Columna> anticipa(Sentencia& sentencia, int literal, int claves)
{
    auto* consulta = std::get_if<Consulta>(&sentencia.dato);
    if (!consulta || claves < 1 || !esConsultaLlana(*consulta) || ordenaPorLiterales(*consulta))
        return std::nullopt;
    std::vector<ExpresionPtr> condiciones;
    separa(std::move(consulta->donde), condiciones);
    for (auto una = condiciones.begin(); una != condiciones.end(); ++una) {
        const auto columna = claveDe(**una, literal);
        if (!columna)
            continue;
        condiciones.erase(una);
        condiciones.push_back(enClaves(*columna, *sentencia.tablas[static_cast<size_t>(columna->fuente)], literal, claves));
        consulta->donde = junta(std::move(condiciones));
        return columna;
    }
    return std::nullopt;
}

} // namespace kestrane::jet
