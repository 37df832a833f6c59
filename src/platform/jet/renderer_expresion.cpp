#include "platform/jet/renderer_interno.h"

namespace kestrane::jet {

using namespace enlazado;

namespace {

/// Whether a text column's own collation rules the expression.
bool tieneCotejoPropio(const Expresion& e)
{
    if (std::holds_alternative<enlazado::Columna>(e.dato) || std::holds_alternative<PrimeraGrafia>(e.dato))
        return esTexto(e.tipo);
    if (const auto* unidos = std::get_if<TextosUnidos>(&e.dato))
        return tieneCotejoPropio(*unidos->izquierda) || tieneCotejoPropio(*unidos->derecha);
    const auto* agregado = std::get_if<Agregado>(&e.dato);
    return agregado && agregado->operando && esTexto(e.tipo) && tieneCotejoPropio(*agregado->operando);
}

constexpr const char* Comparaciones[] = {" = ", " <> ", " < ", " <= ", " > ", " >= "};

} // namespace

void Renderer::cotejado(const Expresion& e)
{
    const bool sobra = m_dialecto.cotejoEscrito == Cotejo::SinColumna && tieneCotejoPropio(e);
    if (!esTexto(e.tipo) || e.esNulo() || sobra)
        return expresion(e, PrecedenciaSql::Suma);
    expresion(e, PrecedenciaSql::Primaria);
    pon(" COLLATE ");
    pon(m_dialecto.cotejo);
}

/// The side of a comparison that tells the engine how to compare; `otra` may already tell it.
void Renderer::comparado(const Expresion& e, Familia familia, const Expresion* otra)
{
    const bool laOtraLoDice = m_dialecto.cotejoEscrito == Cotejo::SinColumna && otra && tieneCotejoPropio(*otra);
    if (familia != Familia::Texto || laOtraLoDice)
        expresion(e, PrecedenciaSql::Suma);
    else
        cotejado(e);
}

void Renderer::nodo(const enlazado::Columna& dato, const Expresion&)
{
    columna(dato);
}

/// The oldest row of the group has the least number: written before the text in fixed width, it makes that text the least.
void Renderer::nodo(const PrimeraGrafia& dato, const Expresion&)
{
    const int fuente = dato.columna.fuente;
    pon("SUBSTR(MIN(");
    pon(m_dialecto.textosUnidos.antes);
    pon(m_dialecto.claveConCeros.antes);
    columnaDe(fuente, tabla(fuente).identidad);
    pon(m_dialecto.claveConCeros.despues);
    pon(m_dialecto.textosUnidos.entre);
    columnaDe(fuente, descrita(dato.columna).nombre);
    pon(m_dialecto.textosUnidos.despues);
    pon("), 21)");
}

void Renderer::nodo(const enlazado::Parametro& dato, const Expresion& e)
{
    marca(dato, e.tipo, m_dialecto.parametro[static_cast<size_t>(e.tipo)]);
}

void Renderer::marca(const enlazado::Parametro& dato, TipoColumna tipo, const Envoltura& envoltura)
{
    pon(envoltura.antes);
    pon("?");
    pon(envoltura.despues);
    m_parametros.push_back({dato.literal, tipo, dato.ancho, dato.negado, dato.columna});
}

void Renderer::nodo(const Nulo&, const Expresion&)
{
    pon("NULL");
}

void Renderer::nodo(const Constante& dato, const Expresion&)
{
    pon(dato.valor ? "-1" : "0");
}

void Renderer::nodo(const Aritmetica& dato, const Expresion&)
{
    aritmetica(dato);
}

void Renderer::nodo(const CambioDeSigno& dato, const Expresion&)
{
    pon("-");
    expresion(*dato.operando, PrecedenciaSql::Primaria);
}

void Renderer::nodo(const TextosUnidos& dato, const Expresion&)
{
    pon(m_dialecto.textosUnidos.antes);
    textoUnido(*dato.izquierda);
    pon(m_dialecto.textosUnidos.entre);
    textoUnido(*dato.derecha);
    pon(m_dialecto.textosUnidos.despues);
}

void Renderer::textoUnido(const Expresion& e)
{
    const bool nuncaNulo = e.esParametro() || std::holds_alternative<TextosUnidos>(e.dato);
    if (nuncaNulo)
        expresion(e, PrecedenciaSql::Comparacion);
    else
        envuelto(m_dialecto.textoNoNulo, e);
}

void Renderer::nodo(const ComoTexto& dato, const Expresion&)
{
    if (dato.operando->tipo != TipoColumna::SiNo)
        return comoTexto(*dato.operando);
    // A condition is asked once: what holds it may be a condition as text itself.
    pon("CASE ");
    if (const auto* valor = std::get_if<ComoValor>(&dato.operando->dato)) {
        expresion(*valor->condicion);
    } else {
        expresion(*dato.operando, PrecedenciaSql::Suma);
        pon(" <> 0");
    }
    pon(" WHEN TRUE THEN 'Verdadero' WHEN FALSE THEN 'Falso' END");
}

void Renderer::nodo(const Parte& dato, const Expresion&)
{
    envuelto(m_dialecto.parte[static_cast<size_t>(dato.parte)], *dato.fecha);
}

void Renderer::nodo(const Agregado& dato, const Expresion&)
{
    const Envoltura& envoltura = m_dialecto.agregado[static_cast<size_t>(dato.funcion)];
    pon(envoltura.antes);
    if (!dato.operando)
        pon("*");
    else if (dato.funcion == FuncionAgregada::Maximo || dato.funcion == FuncionAgregada::Minimo)
        cotejado(*dato.operando);
    else if (dato.operando->esNulo())
        envuelto(m_dialecto.parametro[static_cast<size_t>(TipoColumna::Doble)], *dato.operando); // a Null of no type is no number
    else
        expresion(*dato.operando);
    pon(envoltura.despues);
}

void Renderer::cabe(const Cabe& dato, TipoColumna)
{
    expresion(*dato.operando);
}

void Renderer::nodo(const Cabe& dato, const Expresion& e)
{
    cabe(dato, e.tipo);
}

void Renderer::nodo(const ComoValor& dato, const Expresion&)
{
    envuelto(m_dialecto.condicionComoValor, *dato.condicion);
}

void Renderer::nodo(const Logica& dato, const Expresion&)
{
    const bool o = dato.operador == OperadorLogico::O;
    const PrecedenciaSql precedencia = o ? PrecedenciaSql::O : PrecedenciaSql::Y;
    expresion(*dato.izquierda, precedencia);
    pon(o ? " OR " : " AND ");
    expresion(*dato.derecha, precedencia);
}

void Renderer::nodo(const No& dato, const Expresion&)
{
    pon("NOT ");
    expresion(*dato.operando, PrecedenciaSql::Comparacion);
}

void Renderer::nodo(const Comparacion& dato, const Expresion&)
{
    comparado(*dato.izquierda, dato.familia, dato.derecha.get());
    pon(Comparaciones[static_cast<size_t>(dato.operador)]);
    expresion(*dato.derecha, PrecedenciaSql::Suma);
}

void Renderer::nodo(const Parecido& dato, const Expresion&)
{
    parecido(dato);
}

void Renderer::nodo(const Entre& dato, const Expresion&)
{
    comparado(*dato.valor, dato.familia, nullptr);
    pon(dato.sentido == Sentido::Negado ? " NOT BETWEEN " : " BETWEEN ");
    expresion(*dato.desde, PrecedenciaSql::Suma);
    pon(" AND ");
    expresion(*dato.hasta, PrecedenciaSql::Suma);
}

void Renderer::nodo(const EnLista& dato, const Expresion&)
{
    comparado(*dato.valor, dato.familia, nullptr);
    pon(dato.sentido == Sentido::Negado ? " NOT IN (" : " IN (");
    conComas(dato.lista, [this](const ExpresionPtr& elemento) { expresion(*elemento); });
    pon(")");
}

void Renderer::nodo(const EnConsulta& dato, const Expresion&)
{
    const Expresion& dada = *dato.consulta->lista.front().expresion;
    comparado(*dato.valor, dato.familia, &dada);
    pon(dato.sentido == Sentido::Negado ? " NOT IN (" : " IN (");
    m_enReal = dato.valor->tipo == TipoColumna::Doble && esEntero(dada.tipo) ? &dada : nullptr;
    subconsulta(*dato.consulta);
    pon(")");
}

void Renderer::nodo(const EsNulo& dato, const Expresion&)
{
    expresion(*dato.valor, PrecedenciaSql::Suma);
    pon(dato.sentido == Sentido::Negado ? " IS NOT NULL" : " IS NULL");
}

} // namespace kestrane::jet
