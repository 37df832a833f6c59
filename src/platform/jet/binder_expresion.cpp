#include "platform/jet/binder_interno.h"
#include "platform/jet/nombres.h"
#include "platform/jet/rechazo.h"

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;
using Contexto = ContextoDeExpresion;

namespace {

constexpr TipoColumna tipoDeLiteral(Literal::Clase clase)
{
    switch (clase) {
    case Literal::Clase::Entero:
        return TipoColumna::Entero32;
    case Literal::Clase::Doble:
        return TipoColumna::Doble;
    case Literal::Clase::Texto:
        return TipoColumna::Texto;
    case Literal::Clase::Fecha:
        return TipoColumna::FechaHora;
    }
    Q_UNREACHABLE();
}

OperadorAritmetico aritmetico(ast::OperadorBinario operador)
{
    switch (operador) {
    case ast::OperadorBinario::Suma:
        return OperadorAritmetico::Suma;
    case ast::OperadorBinario::Resta:
        return OperadorAritmetico::Resta;
    case ast::OperadorBinario::Producto:
        return OperadorAritmetico::Producto;
    case ast::OperadorBinario::Division:
        return OperadorAritmetico::Division;
    case ast::OperadorBinario::DivisionEntera:
        return OperadorAritmetico::DivisionEntera;
    default:
        return OperadorAritmetico::Resto;
    }
}

OperadorComparacion comparacion(ast::OperadorBinario operador)
{
    static_assert(static_cast<int>(ast::OperadorBinario::MayorIgual) - static_cast<int>(ast::OperadorBinario::Igual) ==
                  static_cast<int>(OperadorComparacion::MayorIgual));
    return static_cast<OperadorComparacion>(static_cast<int>(operador) - static_cast<int>(ast::OperadorBinario::Igual));
}

TipoColumna tipoDeCuenta(OperadorAritmetico operador, TipoColumna izquierda, TipoColumna derecha)
{
    switch (operador) {
    case OperadorAritmetico::Division:
        return TipoColumna::Doble;
    case OperadorAritmetico::DivisionEntera:
    case OperadorAritmetico::Resto:
        return TipoColumna::Entero32;
    default:
        return esEntero(izquierda) && esEntero(derecha) ? TipoColumna::Entero32 : TipoColumna::Doble;
    }
}

ExpresionPtr cuenta(OperadorAritmetico operador, ExpresionPtr izquierda, ExpresionPtr derecha, ast::Lugar lugar)
{
    exigeNumero(*izquierda);
    exigeNumero(*derecha);
    const TipoColumna tipo = tipoDeCuenta(operador, izquierda->tipo, derecha->tipo);
    if (izquierda->esNulo() || derecha->esNulo())
        return nodo(Nulo{}, tipo, lugar);
    return nodo(Aritmetica{operador, std::move(izquierda), std::move(derecha)}, tipo, lugar);
}

ExpresionPtr compara(OperadorComparacion operador, ExpresionPtr izquierda, ExpresionPtr derecha, ast::Lugar lugar)
{
    // "<> null" asks whether there is a value: the statements of the system rely on it.
    if (operador == OperadorComparacion::Distinto && (izquierda->esNulo() || derecha->esNulo())) {
        ExpresionPtr valor = derecha->esNulo() ? std::move(izquierda) : std::move(derecha);
        return nodo(EsNulo{Sentido::Negado, std::move(valor)}, TipoColumna::SiNo, lugar);
    }
    const Familia familia = equipara({&izquierda, &derecha});
    return nodo(Comparacion{operador, familia, std::move(izquierda), std::move(derecha)}, TipoColumna::SiNo, lugar);
}

ExpresionPtr cambiaSigno(ExpresionPtr operando, ast::Lugar lugar)
{
    exigeNumero(*operando);
    if (operando->esNulo())
        return operando;
    if (auto* parametro = std::get_if<Parametro>(&operando->dato)) {
        parametro->negado = !parametro->negado;
        return operando;
    }
    const TipoColumna tipo = esEntero(operando->tipo) ? TipoColumna::Entero32 : TipoColumna::Doble;
    return nodo(CambioDeSigno{std::move(operando)}, tipo, lugar);
}

} // namespace

ExpresionPtr Binder::expresion(const ast::Expresion& e, const Contexto& contexto)
{
    return std::visit([&](const auto& dato) { return enlazaDato(dato, e.lugar, contexto); }, e.dato);
}

ExpresionPtr Binder::valor(const ast::Expresion& e, const Contexto& contexto)
{
    return comoValor(expresion(e, contexto));
}

ExpresionPtr Binder::condicion(const ast::Expresion& e, const Contexto& contexto)
{
    return comoCondicion(expresion(e, contexto));
}

ExpresionPtr Binder::enlazaDato(const ast::Columna& dato, ast::Lugar lugar, const Contexto& contexto)
{
    if (!contexto.ambito)
        throw Rechazo{{ErrorSql::Clase::ColumnaDesconocida, u"En VALUES solo caben valores: \"%1\" no lo es."_s.arg(dato.nombre),
                       lugar.posicion, lugar.longitud}};
    if (contexto.aliases && dato.tabla.isEmpty() && !contexto.ambito->busca(dato, lugar)) {
        for (const ast::ElementoLista& elemento : contexto.aliases->lista) {
            const auto* conAlias = std::get_if<ast::ElementoExpresion>(&elemento.dato);
            if (!conAlias || !mismoNombre(conAlias->alias, dato.nombre))
                continue;
            Contexto sinAliases = contexto;
            sinAliases.aliases = nullptr;
            return expresion(*conAlias->expresion, sinAliases);
        }
    }
    return columna(contexto.ambito->resuelve(dato, lugar), lugar, contexto);
}

ExpresionPtr Binder::columna(enlazado::Columna hallada, ast::Lugar lugar, const Contexto& contexto) const
{
    const jet::Columna& descrita = tablaDe(hallada.fuente).columnas[static_cast<size_t>(hallada.columna)];
    if (contexto.grupos && esTexto(descrita.tipo) && tieneGrafia(hallada, m_tablas))
        for (const ExpresionPtr& grupo : *contexto.grupos)
            if (const auto* deGrupo = std::get_if<enlazado::Columna>(&grupo->dato); deGrupo && *deGrupo == hallada)
                return nodo(PrimeraGrafia{hallada}, descrita.tipo, lugar);
    return nodo(hallada, descrita.tipo, lugar);
}

ExpresionPtr Binder::enlazaDato(const ast::Valor& dato, ast::Lugar lugar, const Contexto&)
{
    return nodo(Parametro{.literal = dato.literal, .negado = false, .ancho = 0, .columna = {}}, tipoDeLiteral(dato.clase), lugar);
}

ExpresionPtr Binder::enlazaDato(ast::Nulo, ast::Lugar lugar, const Contexto&)
{
    return nodo(Nulo{}, TipoColumna::Texto, lugar);
}

ExpresionPtr Binder::enlazaDato(ast::Logico dato, ast::Lugar lugar, const Contexto&)
{
    return nodo(Constante{dato.valor}, TipoColumna::SiNo, lugar);
}

ExpresionPtr Binder::enlazaDato(const ast::Unaria& dato, ast::Lugar lugar, const Contexto& contexto)
{
    if (dato.operador == ast::OperadorUnario::No)
        return nodo(No{condicion(*dato.operando, contexto)}, TipoColumna::SiNo, lugar);
    ExpresionPtr operando = valor(*dato.operando, contexto);
    if (dato.operador == ast::OperadorUnario::Menos)
        return cambiaSigno(std::move(operando), lugar);
    exigeNumero(*operando);
    return operando;
}

ExpresionPtr Binder::enlazaDato(const ast::Binaria& dato, ast::Lugar lugar, const Contexto& contexto)
{
    using enum ast::OperadorBinario;
    if (dato.operador == O || dato.operador == Y) {
        const OperadorLogico operador = dato.operador == O ? OperadorLogico::O : OperadorLogico::Y;
        ExpresionPtr izquierda = condicion(*dato.izquierda, contexto);
        return nodo(Logica{operador, std::move(izquierda), condicion(*dato.derecha, contexto)}, TipoColumna::SiNo, lugar);
    }
    ExpresionPtr izquierda = valor(*dato.izquierda, contexto);
    ExpresionPtr derecha = valor(*dato.derecha, contexto);
    if (dato.operador == Une)
        return nodo(TextosUnidos{comoTexto(std::move(izquierda)), comoTexto(std::move(derecha))}, TipoColumna::Texto, lugar);
    if (dato.operador >= Igual && dato.operador <= MayorIgual)
        return compara(comparacion(dato.operador), std::move(izquierda), std::move(derecha), lugar);
    return cuenta(aritmetico(dato.operador), std::move(izquierda), std::move(derecha), lugar);
}

ExpresionPtr Binder::enlazaDato(const ast::Parecido& dato, ast::Lugar lugar, const Contexto& contexto)
{
    ExpresionPtr izquierda = comoTexto(valor(*dato.valor, contexto));
    ExpresionPtr patron = comoTexto(valor(*dato.patron, contexto));
    return nodo(Parecido{dato.sentido, std::move(izquierda), std::move(patron)}, TipoColumna::SiNo, lugar);
}

ExpresionPtr Binder::enlazaDato(const ast::Entre& dato, ast::Lugar lugar, const Contexto& contexto)
{
    ExpresionPtr medio = valor(*dato.valor, contexto);
    ExpresionPtr desde = valor(*dato.desde, contexto);
    ExpresionPtr hasta = valor(*dato.hasta, contexto);
    const Familia familia = equipara({&medio, &desde, &hasta});
    return nodo(Entre{dato.sentido, familia, std::move(medio), std::move(desde), std::move(hasta)}, TipoColumna::SiNo, lugar);
}

ExpresionPtr Binder::enlazaDato(const ast::EnLista& dato, ast::Lugar lugar, const Contexto& contexto)
{
    ExpresionPtr izquierda = valor(*dato.valor, contexto);
    std::vector<ExpresionPtr> lista;
    lista.reserve(dato.lista.size());
    for (const ast::ExpresionPtr& elemento : dato.lista)
        lista.push_back(valor(*elemento, contexto));
    std::vector<ExpresionPtr*> todos{&izquierda};
    todos.reserve(lista.size() + 1);
    for (ExpresionPtr& elemento : lista)
        todos.push_back(&elemento);
    const Familia familia = equipara(todos);
    return nodo(EnLista{dato.sentido, familia, std::move(izquierda), std::move(lista)}, TipoColumna::SiNo, lugar);
}

ExpresionPtr Binder::enlazaDato(const ast::EnConsulta& dato, ast::Lugar lugar, const Contexto& contexto)
{
    ExpresionPtr izquierda = valor(*dato.valor, contexto);
    auto dentro = std::make_unique<Consulta>(consulta(*dato.consulta, contexto.ambito, UsoDeConsulta::EnIn));
    if (dentro->lista.size() != 1)
        throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta,
                       u"La consulta de IN ha de dar una sola columna y da %1."_s.arg(dentro->lista.size()),
                       dato.consulta->lugar.posicion, dato.consulta->lugar.longitud}};
    ExpresionPtr& dada = dentro->lista.front().expresion;
    const Familia familia = equipara({&izquierda, &dada});
    if (dada->esNulo())
        dada->tipo = izquierda->tipo;
    return nodo(EnConsulta{dato.sentido, familia, std::move(izquierda), std::move(dentro)}, TipoColumna::SiNo, lugar);
}

ExpresionPtr Binder::enlazaDato(const ast::EsNulo& dato, ast::Lugar lugar, const Contexto& contexto)
{
    return nodo(EsNulo{dato.sentido, valor(*dato.valor, contexto)}, TipoColumna::SiNo, lugar);
}

} // namespace kestrane::jet
