#include "platform/jet/parser.h"

#include "platform/jet/lexer.h"
#include "platform/jet/parser_interno.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

namespace {

/// First words of statements that other programs know and this dialect does not carry out.
constexpr std::array OtrasSentencias = {
    u"alter",     u"analyze", u"attach",     u"begin",    u"call",      u"commit",  u"copy",  u"create",  u"declare", u"describe",
    u"detach",    u"do",      u"drop",       u"exec",     u"execute",   u"explain", u"grant", u"if",      u"listen",  u"load",
    u"lock",      u"merge",   u"parameters", u"pragma",   u"procedure", u"reindex", u"rem",   u"replace", u"revoke",  u"rollback",
    u"savepoint", u"show",    u"transform",  u"truncate", u"use",       u"vacuum",  u"with",
};

bool esOtraSentencia(QStringView palabra)
{
    return std::ranges::any_of(OtrasSentencias,
                               [&](const char16_t* otra) { return palabra.compare(QStringView(otra), Qt::CaseInsensitive) == 0; });
}

/// What stands in a token, for a message.
QString comoSeLee(const Token& token)
{
    switch (token.clase) {
    case ClaseToken::Nombre:
        return u"\"%1\""_s.arg(token.texto);
    case ClaseToken::Texto:
        return u"el texto '%1'"_s.arg(token.texto);
    case ClaseToken::Entero:
    case ClaseToken::Doble:
        return u"el número %1"_s.arg(QString::number(token.numero, 'g', 15));
    case ClaseToken::Fecha:
        return u"una fecha"_s;
    default:
        return nombreDeToken(token.clase);
    }
}

} // namespace

Resultado<ast::Sentencia, ErrorSql> parsea(QStringView sentencia)
{
    auto tokens = tokeniza(sentencia);
    if (!tokens)
        return std::move(tokens).error();
    return conRechazo([&] { return Parser{std::move(tokens).valor()}.parseSentencia(); });
}

ast::Sentencia Parser::parseSentencia()
{
    if (esta(ClaseToken::Fin) || esta(ClaseToken::PuntoYComa))
        throw Rechazo{{ErrorSql::Clase::TextoVacio, u"No hay ninguna sentencia."_s, actual().posicion, actual().longitud}};
    ast::Sentencia sentencia = parseCuerpo();
    consumeSi(ClaseToken::PuntoYComa);
    rehusaRestos();
    return sentencia;
}

ast::Sentencia Parser::parseCuerpo()
{
    switch (actual().clase) {
    case ClaseToken::Select:
        return parseConsulta();
    case ClaseToken::Insert:
        return parseInsercion();
    case ClaseToken::Update:
        return parseModificacion();
    case ClaseToken::Delete:
        return parseBorrado();
    default:
        break;
    }
    const ClaseToken detras = siguiente().clase;
    if (esta(ClaseToken::Nombre) && (detras == ClaseToken::Fin || detras == ClaseToken::PuntoYComa))
        return parseTablaSola();
    rehusaOtrasSentencias();
    esperaba(u"SELECT, INSERT, UPDATE, DELETE o el nombre de una tabla"_s);
}

/// A text that is one table's name opens all of that table.
ast::Consulta Parser::parseTablaSola()
{
    ast::Consulta consulta;
    const Token& primero = actual();
    consulta.desde.push_back(parseFuentePrimaria());
    consulta.lugar = lugarDesde(primero);
    consulta.lista.push_back({ast::Asterisco{}, consulta.lugar});
    return consulta;
}

ast::Insercion Parser::parseInsercion()
{
    ast::Insercion insercion;
    consume(ClaseToken::Insert);
    consume(ClaseToken::Into);
    insercion.tabla = consumeNombre(u"el nombre de la tabla");
    if (consumeSi(ClaseToken::AbreParentesis)) {
        insercion.columnas = conComas([this] { return consumeNombre(u"el nombre de una columna"); });
        consume(ClaseToken::CierraParentesis);
    }
    if (esta(ClaseToken::Select))
        noAdmitida(actual(), u"No se admite INSERT con una consulta: las filas se insertan con VALUES, de una en una."_s);
    consume(ClaseToken::Values);
    consume(ClaseToken::AbreParentesis);
    insercion.valores = conComas([this] { return parseExpresion(); });
    consume(ClaseToken::CierraParentesis);
    if (esta(ClaseToken::Coma))
        noAdmitida(actual(), u"No se admite INSERT de varias filas: se insertan de una en una."_s);
    return insercion;
}

ast::Modificacion Parser::parseModificacion()
{
    ast::Modificacion modificacion;
    consume(ClaseToken::Update);
    modificacion.tabla = consumeNombre(u"el nombre de la tabla");
    consume(ClaseToken::Set);
    modificacion.asignaciones = conComas([this] { return parseAsignacion(); });
    modificacion.donde = parseClausula(ClaseToken::Where);
    return modificacion;
}

ast::Asignacion Parser::parseAsignacion()
{
    ast::Asignacion asignacion;
    asignacion.columna = consumeNombre(u"el nombre de una columna");
    consume(ClaseToken::Igual);
    asignacion.valor = parseExpresion();
    return asignacion;
}

ast::Borrado Parser::parseBorrado()
{
    ast::Borrado borrado;
    consume(ClaseToken::Delete);
    consumeSi(ClaseToken::Asterisco);
    consume(ClaseToken::From);
    borrado.tabla = consumeNombre(u"el nombre de la tabla");
    borrado.donde = parseClausula(ClaseToken::Where);
    return borrado;
}

const Token& Parser::siguiente() const
{
    return m_tokens[std::min(m_indice + 1, m_tokens.size() - 1)];
}

bool Parser::consumeSi(ClaseToken clase)
{
    if (!esta(clase))
        return false;
    if (clase != ClaseToken::Fin)
        ++m_indice;
    return true;
}

const Token& Parser::consume(ClaseToken clase)
{
    if (!consumeSi(clase))
        esperaba(nombreDeToken(clase));
    return anterior();
}

ast::Nombre Parser::consumeNombre(QStringView que)
{
    if (!consumeSi(ClaseToken::Nombre))
        esperaba(que.toString());
    return {anterior().texto.toString(), {anterior().posicion, anterior().longitud}};
}

ast::Lugar Parser::lugarDesde(const Token& primero) const
{
    const Token& ultimo = anterior();
    return {primero.posicion, std::max(primero.longitud, ultimo.posicion + ultimo.longitud - primero.posicion)};
}

void Parser::esperaba(const QString& que) const
{
    const Token& token = actual();
    const QString hallado = token.clase == ClaseToken::Fin ? u"La sentencia termina y se esperaba %1."_s.arg(que)
                                                           : u"Aquí hay %1 y se esperaba %2."_s.arg(comoSeLee(token), que);
    throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta, hallado, token.posicion, token.longitud}};
}

void Parser::noAdmitida(const Token& token, const QString& mensaje) const
{
    throw Rechazo{{ErrorSql::Clase::SentenciaNoAdmitida, mensaje, token.posicion, token.longitud}};
}

void Parser::rehusaOtrasSentencias() const
{
    const Token& token = actual();
    const bool otra =
        esta(ClaseToken::Set) || esta(ClaseToken::Values) || (esta(ClaseToken::Nombre) && esOtraSentencia(token.texto));
    if (otra) {
        const QString palabra = esta(ClaseToken::Nombre) ? token.texto.toString().toUpper() : nombreDeToken(token.clase);
        noAdmitida(token, u"No se admite la sentencia %1: solo SELECT, INSERT, UPDATE y DELETE."_s.arg(palabra));
    }
}

/// What may not stand behind a whole statement.
void Parser::rehusaRestos() const
{
    if (esta(ClaseToken::Fin))
        return;
    if (esta(ClaseToken::Union))
        noAdmitida(actual(), u"No se admite UNION: las consultas se hacen de una en una."_s);
    if (anterior().clase == ClaseToken::PuntoYComa)
        noAdmitida(actual(), u"Solo se admite una sentencia cada vez: tras el punto y coma no puede haber nada más."_s);
    esperaba(u"un operador, otra cláusula o el final"_s);
}

} // namespace kestrane::jet
