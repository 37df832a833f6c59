#include "platform/jet/parser_interno.h"

using namespace Qt::StringLiterals;

namespace kestrane::jet {

ast::Consulta Parser::parseConsulta()
{
    const int masHondoFuera = std::exchange(m_masHondo, 0);
    const int tablasFuera = std::exchange(m_tablas, 0);
    ast::Consulta consulta;
    const Token& primero = consume(ClaseToken::Select);
    consulta.filas = parseFilas();
    consulta.limite = parseLimite();
    consulta.lista = conComas([this] { return parseElementoLista(); });
    compruebaCuantos(consulta.lista.size(), limites::ElementosDeLista, u"SELECT");
    if (esta(ClaseToken::Into))
        noAdmitida(actual(), u"No se admite SELECT ... INTO: una consulta no crea tablas."_s);
    consume(ClaseToken::From);
    consulta.desde = conComas([this] { return parseFuente(); });
    consulta.donde = parseClausula(ClaseToken::Where);
    consulta.grupos = parseGrupos();
    consulta.teniendo = parseClausula(ClaseToken::Having);
    consulta.orden = parseOrden();
    consulta.lugar = lugarDesde(primero);
    consulta.profundidad = std::exchange(m_masHondo, std::max(m_masHondo, masHondoFuera));
    m_tablas = tablasFuera;
    return consulta;
}

ast::Filas Parser::parseFilas()
{
    if (consumeSi(ClaseToken::Distinct))
        return ast::Filas::Distintas;
    consumeSi(ClaseToken::All);
    return ast::Filas::Todas;
}

ast::ExpresionPtr Parser::parseLimite()
{
    if (!consumeSi(ClaseToken::Top))
        return nullptr;
    if (!esta(ClaseToken::Entero))
        esperaba(u"el número de filas de TOP"_s);
    return parseLiteral();
}

ast::ElementoLista Parser::parseElementoLista()
{
    const Token& primero = actual();
    if (auto asterisco = parseAsterisco())
        return {std::move(*asterisco), lugarDesde(primero)};
    ast::ElementoExpresion elemento;
    elemento.expresion = parseExpresion();
    elemento.alias = parseAlias();
    return {std::move(elemento), lugarDesde(primero)};
}

/// "*" or "t.*", if that is what stands here.
std::optional<ast::Asterisco> Parser::parseAsterisco()
{
    if (consumeSi(ClaseToken::Asterisco))
        return ast::Asterisco{};
    const size_t trasElPunto = m_indice + 2;
    const bool deTabla = esta(ClaseToken::Nombre) && siguiente().clase == ClaseToken::Punto && trasElPunto < m_tokens.size() &&
                         m_tokens[trasElPunto].clase == ClaseToken::Asterisco;
    if (!deTabla)
        return std::nullopt;
    const QString tabla = actual().texto.toString();
    m_indice += 3;
    return ast::Asterisco{tabla};
}

QString Parser::parseAlias()
{
    if (consumeSi(ClaseToken::As))
        return consumeNombre(u"el nombre que se da con AS").texto;
    return consumeSi(ClaseToken::Nombre) ? anterior().texto.toString() : QString();
}

ast::FuentePtr Parser::parseFuente()
{
    ast::FuentePtr fuente = parseFuentePrimaria();
    while (true) {
        if (consumeSi(ClaseToken::Inner)) {
            fuente = parseUnion(std::move(fuente), ast::ClaseUnion::Interior);
        } else if (consumeSi(ClaseToken::Left)) {
            consumeSi(ClaseToken::Outer);
            fuente = parseUnion(std::move(fuente), ast::ClaseUnion::Izquierda);
        } else if (esta(ClaseToken::Right)) {
            noAdmitida(actual(), u"No se admite RIGHT JOIN: escriba las tablas al revés con LEFT JOIN."_s);
        } else {
            return fuente;
        }
    }
}

ast::FuentePtr Parser::parseUnion(ast::FuentePtr izquierda, ast::ClaseUnion clase)
{
    consume(ClaseToken::Join);
    ast::FuentePtr derecha = parseFuentePrimaria();
    consume(ClaseToken::On);
    ast::ExpresionPtr condicion = parseExpresion();
    const ast::Lugar lugar{izquierda->lugar.posicion, anterior().posicion + anterior().longitud - izquierda->lugar.posicion};
    return std::make_unique<const ast::Fuente>(
        ast::Fuente{ast::Union{clase, std::move(izquierda), std::move(derecha), std::move(condicion)}, lugar});
}

ast::FuentePtr Parser::parseFuentePrimaria()
{
    const Token& primero = actual();
    if (esta(ClaseToken::AbreParentesis)) {
        const Nivel nivel{*this};
        consume(ClaseToken::AbreParentesis);
        if (esta(ClaseToken::Select))
            noAdmitida(actual(), u"No se admite una consulta en lugar de una tabla."_s);
        ast::FuentePtr fuente = parseFuente();
        consume(ClaseToken::CierraParentesis);
        return fuente;
    }
    if (++m_tablas > limites::TablasUnidas)
        noAdmitida(actual(), u"Una consulta admite %1 tablas."_s.arg(limites::TablasUnidas));
    ast::FuenteTabla tabla;
    tabla.nombre = consumeNombre(u"el nombre de una tabla").texto;
    const ast::Lugar lugar = lugarDesde(primero);
    if (esta(ClaseToken::Punto))
        noAdmitida(actual(), u"No se admite el nombre de otra base de datos delante del de la tabla."_s);
    tabla.alias = parseAlias();
    return std::make_unique<const ast::Fuente>(ast::Fuente{std::move(tabla), lugar});
}

/// The condition behind WHERE or HAVING; nullptr when the word is not there.
ast::ExpresionPtr Parser::parseClausula(ClaseToken palabra)
{
    return consumeSi(palabra) ? parseExpresion() : nullptr;
}

std::vector<ast::ExpresionPtr> Parser::parseGrupos()
{
    if (!consumeSi(ClaseToken::Group))
        return {};
    consume(ClaseToken::By);
    auto grupos = conComas([this] { return parseExpresion(); });
    compruebaCuantos(grupos.size(), limites::ClavesDeLista, u"GROUP BY");
    return grupos;
}

std::vector<ast::ClaveDeOrden> Parser::parseOrden()
{
    if (!consumeSi(ClaseToken::Order))
        return {};
    consume(ClaseToken::By);
    auto orden = conComas([this] { return parseClaveDeOrden(); });
    compruebaCuantos(orden.size(), limites::ClavesDeLista, u"ORDER BY");
    return orden;
}

ast::ClaveDeOrden Parser::parseClaveDeOrden()
{
    ast::ClaveDeOrden clave;
    clave.expresion = parseExpresion();
    if (consumeSi(ClaseToken::Desc))
        clave.direccion = ast::Direccion::Descendente;
    else
        consumeSi(ClaseToken::Asc);
    return clave;
}

void Parser::compruebaCuantos(size_t elementos, int caben, QStringView clausula) const
{
    if (elementos <= static_cast<size_t>(caben))
        return;
    const Token& token = anterior();
    throw Rechazo{{ErrorSql::Clase::DemasiadoLargo,
                   u"La lista de %1 es demasiado larga: caben %2 elementos."_s.arg(clausula).arg(caben), token.posicion,
                   token.longitud}};
}

} // namespace kestrane::jet
