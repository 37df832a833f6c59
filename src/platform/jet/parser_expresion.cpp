#include "platform/jet/ast/precedencia.h"
#include "platform/jet/lectura_literales.h"
#include "platform/jet/parser_interno.h"

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using ast::OperadorUnario;
using ast::Precedencia;
using ast::Sentido;

namespace {

int masHondoDe(const std::vector<ast::ExpresionPtr>& lista)
{
    int profundidad = 0;
    for (const ast::ExpresionPtr& elemento : lista)
        profundidad = std::max(profundidad, elemento->profundidad);
    return profundidad;
}

Literal::Clase claseDeLiteral(ClaseToken clase)
{
    switch (clase) {
    case ClaseToken::Entero:
        return Literal::Clase::Entero;
    case ClaseToken::Doble:
        return Literal::Clase::Doble;
    case ClaseToken::Texto:
        return Literal::Clase::Texto;
    default:
        return Literal::Clase::Fecha;
    }
}

} // namespace

ast::ExpresionPtr Parser::parseExpresion()
{
    return parseExpresion(Precedencia::O);
}

/// Operators that hold at least as tightly as `minima`, by precedence climbing: operands of one level gather from the left in this
/// loop, tighter ones in the calls below.
ast::ExpresionPtr Parser::parseExpresion(Precedencia minima)
{
    ast::ExpresionPtr izquierda = parseOperando(minima);
    while (true) {
        const ast::FilaDeOperador* fila = ast::filaDe(actual().clase);
        if (fila && fila->precedencia >= minima) {
            izquierda = parseBinaria(std::move(izquierda));
            continue;
        }
        if (minima > Precedencia::Comparacion || !hayPrueba())
            return izquierda;
        izquierda = parsePrueba(std::move(izquierda));
    }
}

/// What an expression begins with: a sign or NOT before its operand, or a value.
ast::ExpresionPtr Parser::parseOperando(Precedencia minima)
{
    if (esta(ClaseToken::Not) && minima <= Precedencia::No)
        return parseUnaria(OperadorUnario::No, Precedencia::No);
    if (esta(ClaseToken::Menos))
        return parseUnaria(OperadorUnario::Menos, Precedencia::Signo);
    if (esta(ClaseToken::Mas))
        return parseUnaria(OperadorUnario::Mas, Precedencia::Signo);
    return parsePrimaria();
}

ast::ExpresionPtr Parser::parseUnaria(OperadorUnario operador, Precedencia delOperando)
{
    const Nivel nivel{*this};
    const Token& primero = actual();
    ++m_indice;
    ast::ExpresionPtr operando = parseExpresion(delOperando);
    const int debajo = operando->profundidad;
    return nodo(ast::Unaria{operador, std::move(operando)}, lugarDesde(primero), {debajo});
}

ast::ExpresionPtr Parser::parseBinaria(ast::ExpresionPtr izquierda)
{
    const ast::FilaDeOperador& fila = *ast::filaDe(actual().clase);
    ++m_indice;
    ast::ExpresionPtr derecha = parseExpresion(ast::masFuerte(fila.precedencia));
    const auto debajo = {izquierda->profundidad, derecha->profundidad};
    const ast::Lugar lugar = lugarQueAbarca(*izquierda);
    return nodo(ast::Binaria{fila.operador, std::move(izquierda), std::move(derecha)}, lugar, debajo);
}

/// IS, LIKE, BETWEEN and IN behind a value, the last three with or without NOT.
bool Parser::hayPrueba() const
{
    const ClaseToken palabra = esta(ClaseToken::Not) ? siguiente().clase : actual().clase;
    return esta(ClaseToken::Is) || palabra == ClaseToken::Like || palabra == ClaseToken::Between || palabra == ClaseToken::In;
}

ast::ExpresionPtr Parser::parsePrueba(ast::ExpresionPtr valor)
{
    if (esta(ClaseToken::Is))
        return parseEsNulo(std::move(valor));
    const bool negada = esta(ClaseToken::Not);
    const ClaseToken palabra = negada ? siguiente().clase : actual().clase;
    m_indice += negada ? 2 : 1;
    const Sentido sentido = negada ? Sentido::Negado : Sentido::Afirmado;
    if (palabra == ClaseToken::Between)
        return parseEntre(std::move(valor), sentido);
    if (palabra == ClaseToken::In)
        return parseEn(std::move(valor), sentido);
    return parseParecido(std::move(valor), sentido);
}

ast::ExpresionPtr Parser::parseEsNulo(ast::ExpresionPtr valor)
{
    consume(ClaseToken::Is);
    const Sentido sentido = consumeSi(ClaseToken::Not) ? Sentido::Negado : Sentido::Afirmado;
    consume(ClaseToken::Null);
    const int debajo = valor->profundidad;
    const ast::Lugar lugar = lugarQueAbarca(*valor);
    return nodo(ast::EsNulo{sentido, std::move(valor)}, lugar, {debajo});
}

ast::ExpresionPtr Parser::parseParecido(ast::ExpresionPtr valor, Sentido sentido)
{
    ast::ExpresionPtr patron = parseExpresion(ast::masFuerte(Precedencia::Comparacion));
    const auto debajo = {valor->profundidad, patron->profundidad};
    const ast::Lugar lugar = lugarQueAbarca(*valor);
    return nodo(ast::Parecido{sentido, std::move(valor), std::move(patron)}, lugar, debajo);
}

ast::ExpresionPtr Parser::parseEntre(ast::ExpresionPtr valor, Sentido sentido)
{
    ast::ExpresionPtr desde = parseExpresion(ast::masFuerte(Precedencia::Comparacion));
    consume(ClaseToken::And);
    ast::ExpresionPtr hasta = parseExpresion(ast::masFuerte(Precedencia::Comparacion));
    const auto debajo = {valor->profundidad, desde->profundidad, hasta->profundidad};
    const ast::Lugar lugar = lugarQueAbarca(*valor);
    return nodo(ast::Entre{sentido, std::move(valor), std::move(desde), std::move(hasta)}, lugar, debajo);
}

ast::ExpresionPtr Parser::parseEn(ast::ExpresionPtr valor, Sentido sentido)
{
    const Nivel nivel{*this};
    consume(ClaseToken::AbreParentesis);
    if (esta(ClaseToken::Select)) {
        auto consulta = std::make_unique<const ast::Consulta>(parseConsulta());
        consume(ClaseToken::CierraParentesis);
        const auto debajo = {valor->profundidad, consulta->profundidad};
        const ast::Lugar lugar = lugarQueAbarca(*valor);
        return nodo(ast::EnConsulta{sentido, std::move(valor), std::move(consulta)}, lugar, debajo);
    }
    auto lista = conComas([this] { return parseExpresion(); });
    compruebaCuantos(lista.size(), limites::ElementosDeIn, u"IN");
    consume(ClaseToken::CierraParentesis);
    const auto debajo = {valor->profundidad, masHondoDe(lista)};
    const ast::Lugar lugar = lugarQueAbarca(*valor);
    return nodo(ast::EnLista{sentido, std::move(valor), std::move(lista)}, lugar, debajo);
}

ast::ExpresionPtr Parser::parsePrimaria()
{
    const Token& token = actual();
    const ast::Lugar lugar{token.posicion, token.longitud};
    if (esLiteral(token.clase))
        return parseLiteral();
    switch (token.clase) {
    case ClaseToken::AbreParentesis:
        return parseParentesis();
    case ClaseToken::Nombre:
        return siguiente().clase == ClaseToken::AbreParentesis ? parseLlamada() : parseColumna();
    case ClaseToken::Null:
        ++m_indice;
        return nodo(ast::Nulo{}, lugar);
    case ClaseToken::True:
    case ClaseToken::False:
        ++m_indice;
        return nodo(ast::Logico{token.clase == ClaseToken::True}, lugar);
    case ClaseToken::Exists:
        noAdmitida(token, u"No se admite EXISTS: use IN con una consulta."_s);
    default:
        esperaba(u"un valor"_s);
    }
}

ast::ExpresionPtr Parser::parseParentesis()
{
    const Nivel nivel{*this};
    consume(ClaseToken::AbreParentesis);
    if (esta(ClaseToken::Select))
        noAdmitida(actual(), u"Una consulta entre paréntesis solo se admite detrás de IN."_s);
    ast::ExpresionPtr expresion = parseExpresion();
    consume(ClaseToken::CierraParentesis);
    return expresion;
}

ast::ExpresionPtr Parser::parseLiteral()
{
    const Token& token = actual();
    if (token.literal >= limites::Literales)
        throw Rechazo{{ErrorSql::Clase::DemasiadoLargo,
                       u"La sentencia tiene demasiados valores: se admiten %1."_s.arg(limites::Literales), token.posicion,
                       token.longitud}};
    ++m_indice;
    ast::Valor valor;
    valor.clase = claseDeLiteral(token.clase);
    valor.numero = token.numero;
    valor.fecha = token.fecha;
    valor.literal = token.literal;
    if (token.clase == ClaseToken::Texto)
        valor.texto = token.texto.contains(u'\'') ? sinComillasDobladas(token.texto) : token.texto.toString();
    return nodo(std::move(valor), {token.posicion, token.longitud});
}

ast::ExpresionPtr Parser::parseColumna()
{
    const Token& primero = consume(ClaseToken::Nombre);
    ast::Columna columna{{}, primero.texto.toString()};
    if (consumeSi(ClaseToken::Punto)) {
        columna.tabla = std::move(columna.nombre);
        columna.nombre = consumeNombre(u"el nombre de una columna").texto;
    }
    return nodo(std::move(columna), lugarDesde(primero));
}

ast::ExpresionPtr Parser::parseLlamada()
{
    const Nivel nivel{*this};
    const Token& primero = consume(ClaseToken::Nombre);
    consume(ClaseToken::AbreParentesis);
    ast::Llamada llamada{primero.texto.toString(), false, {}};
    llamada.asterisco = consumeSi(ClaseToken::Asterisco);
    if (!llamada.asterisco && !esta(ClaseToken::CierraParentesis))
        llamada.argumentos = conComas([this] { return parseExpresion(); });
    consume(ClaseToken::CierraParentesis);
    const int debajo = masHondoDe(llamada.argumentos);
    return nodo(std::move(llamada), lugarDesde(primero), {debajo});
}

ast::Lugar Parser::lugarQueAbarca(const ast::Expresion& primera) const
{
    const Token& ultimo = anterior();
    return {primera.lugar.posicion, ultimo.posicion + ultimo.longitud - primera.lugar.posicion};
}

} // namespace kestrane::jet
