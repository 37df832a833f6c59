#include "instalacion/esquema.h"
#include "platform/jet/ast/impresor.h"
#include "platform/jet/catalogo_esquema.h"
#include "platform/jet/forma.h"
#include "platform/jet/lexer.h"
#include "platform/jet/limites.h"
#include "platform/jet/parser.h"
#include "platform/jet/traductor.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>

// Any bytes as a statement: it is translated for the three engines or refused, and what must hold of every text holds of it.

using namespace kestrane;
using namespace kestrane::jet;

namespace {

void exige(bool condicion, const char* que, QStringView sentencia)
{
    if (condicion)
        return;
    std::fprintf(stderr, "%s\n%s\n", que, sentencia.toUtf8().constData());
    std::abort();
}

/// More than the longest text that the limits of the grammar let an engine see.
constexpr qsizetype BytesMaximos = limites::Escritos * 200;
/// Of the processor, sanitizers included.
constexpr std::clock_t SegundosMaximos = 5;

/// What the fuzzer keeps between runs: the catalogues and the translators that read them.
class Mesa
{
public:
    void prueba(QStringView sentencia)
    {
        const std::clock_t antes = std::clock();
        pruebaTodo(sentencia);
        exige(std::clock() - antes < SegundosMaximos * CLOCKS_PER_SEC, "a text keeps the front end busy", sentencia);
    }

private:
    void pruebaTodo(QStringView sentencia)
    {
        compruebaForma(sentencia);
        compruebaArbol(sentencia);
        for (const Traductor& traductor : m_traductores)
            compruebaTraduccion(sentencia, traductor);
    }

    void compruebaForma(QStringView sentencia)
    {
        const auto tokens = tokeniza(sentencia);
        const bool hayForma = m_extractor.extrae(sentencia);
        if (!tokens)
            return compruebaError(tokens.error(), sentencia);
        exige(hayForma, "the lexer reads what has no shape", sentencia);
        size_t visto = 0;
        for (const Token& token : tokens.valor()) {
            if (!esLiteral(token.clase))
                continue;
            exige(visto < m_extractor.literales().size(), "the shape lacks a literal", sentencia);
            compruebaLiteral(m_extractor.literales()[visto++], token, sentencia);
        }
        exige(visto == m_extractor.literales().size(), "the shape has a literal too many", sentencia);
    }

    static void compruebaLiteral(const Literal& literal, const Token& token, QStringView sentencia)
    {
        const int clase = static_cast<int>(literal.clase) + static_cast<int>(ClaseToken::Entero);
        exige(clase == static_cast<int>(token.clase), "a literal of another class", sentencia);
        exige(literal.numero == token.numero && literal.fecha == token.fecha, "a literal of another value", sentencia);
        const QString texto = token.texto.toString().replace(QStringLiteral("''"), QStringLiteral("'"));
        exige(token.clase != ClaseToken::Texto || literal.texto == texto, "a literal of another text", sentencia);
    }

    static void compruebaArbol(QStringView sentencia)
    {
        const auto arbol = parsea(sentencia);
        if (!arbol)
            return compruebaError(arbol.error(), sentencia);
        const QString impresa = ast::imprime(arbol.valor());
        const auto otro = parsea(impresa);
        exige(otro.bien(), "the printed tree does not parse", impresa);
        exige(arbol.valor() == otro.valor(), "the printed tree says something else", impresa);
    }

    static void compruebaTraduccion(QStringView sentencia, const Traductor& traductor)
    {
        const auto traduccion = traductor.traduce(sentencia);
        if (!traduccion)
            return compruebaError(traduccion.error(), sentencia);
        const Traduccion& hecha = traduccion.valor();
        exige(hecha.sql.size() <= BytesMaximos, "the text for an engine grows without bound", sentencia);
        exige(hecha.sql.count('?') == static_cast<qsizetype>(hecha.parametros.size()), "marks and parameters differ", sentencia);
        exige(!hecha.sql.contains("--") && !hecha.sql.contains("/*"), "a comment in the text", sentencia);
        if (!hecha.parametros.empty())
            (void)traductor.traduceAnticipada(sentencia, hecha.parametros.front().literal, 3);
    }

    static void compruebaError(const ErrorSql& error, QStringView sentencia)
    {
        const bool dentro =
            error.posicion >= 0 && error.longitud >= 0 && error.posicion + error.longitud <= static_cast<int>(sentencia.size());
        exige(dentro, "the place of an error lies outside the text", sentencia);
        exige(!error.mensaje.isEmpty(), "an error without a message", sentencia);
        (void)describe(error, sentencia);
    }

    static CatalogoPrueba catalogo(Motor motor)
    {
        CatalogoPrueba todas = catalogoDe(instalacion::baseTienda(), motor);
        const CatalogoPrueba listados = catalogoDe(instalacion::baseListados(), motor);
        for (const auto& tabla : listados.tablas())
            todas.anade(*tabla);
        return todas;
    }

    static Traductor traductor(Catalogo& catalogo, Motor motor)
    {
        return Traductor{catalogo, motor, ConfiguracionRegional::espania()};
    }

    ExtractorDeForma m_extractor;
    CatalogoPrueba m_sqlite = catalogo(Motor::Sqlite);
    CatalogoPrueba m_postgresql = catalogo(Motor::PostgreSql);
    CatalogoPrueba m_mariadb = catalogo(Motor::MariaDb);
    std::array<Traductor, 3> m_traductores = {traductor(m_sqlite, Motor::Sqlite), traductor(m_postgresql, Motor::PostgreSql),
                                              traductor(m_mariadb, Motor::MariaDb)};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t bytes)
{
    static Mesa mesa;
    const auto* texto = reinterpret_cast<const char*>(datos);
    mesa.prueba(QString::fromUtf8(texto, static_cast<qsizetype>(bytes)));
    return 0;
}
