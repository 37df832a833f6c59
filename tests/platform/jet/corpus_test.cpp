#include "corpus/corpus.h"
#include "platform/jet/ast/impresor.h"
#include "platform/jet/catalogo_esquema.h"
#include "platform/jet/forma.h"
#include "platform/jet/lexer.h"
#include "platform/jet/parser.h"
#include "platform/jet/traductor.h"
#include "platform/runtime/conversiones.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using prueba::SentenciaCorpus;
using Veredicto = SentenciaCorpus::Veredicto;

constexpr Motor Motores[] = {Motor::Sqlite, Motor::PostgreSql, Motor::MariaDb};

const std::vector<SentenciaCorpus>& corpus()
{
    static const auto leido = prueba::todasLasSentencias();
    return leido;
}

/// Whether the platform's strict reading makes nothing of a text that is written to a number or date column.
bool seRehusaAlConvertir(const Literal& literal, TipoColumna tipo)
{
    const auto regional = ConfiguracionRegional::espania();
    const bool texto = literal.clase == Literal::Clase::Texto;
    const bool aTexto = tipo == TipoColumna::Texto || tipo == TipoColumna::Memo;
    if (!texto || aTexto)
        return false;
    const auto numero = [&] { return aDoble(literal.texto, regional); };
    const auto fecha = [&] { return aFecha(literal.texto, regional); };
    return (tipo == TipoColumna::FechaHora ? prueba::numeroDeError(fecha) : prueba::numeroDeError(numero)) != 0;
}

/// Only binding can tell that a text is no number or date.
bool seRehusaAlLigar(const Traduccion& traduccion, const QString& sentencia)
{
    ExtractorDeForma extractor;
    if (!extractor.extrae(sentencia))
        return false;
    return std::ranges::any_of(traduccion.parametros, [&](const Parametro& p) {
        return seRehusaAlConvertir(extractor.literales()[static_cast<size_t>(p.literal)], p.tipo);
    });
}

class Corpus : public testing::TestWithParam<Motor>
{
protected:
    Corpus()
        : m_tienda{catalogoDe(instalacion::baseTienda(), GetParam())}
        , m_listados{catalogoDe(instalacion::baseListados(), GetParam())}
    {
    }

    Resultado<Traduccion, ErrorSql> traduce(const SentenciaCorpus& sentencia)
    {
        Catalogo& catalogo = sentencia.base == SentenciaCorpus::Base::Tienda ? m_tienda : m_listados;
        return Traductor{catalogo, GetParam(), ConfiguracionRegional::espania()}.traduce(sentencia.texto);
    }

private:
    CatalogoPrueba m_tienda;
    CatalogoPrueba m_listados;
};

TEST_P(Corpus, EachStatementThatMustRunIsTranslated)
{
    for (const SentenciaCorpus& sentencia : corpus()) {
        if (sentencia.veredicto != Veredicto::Corre)
            continue;
        const auto traduccion = traduce(sentencia);
        EXPECT_TRUE(traduccion.bien()) << qPrintable(sentencia.rotulo()) << '\n'
                                       << (traduccion ? "" : qPrintable(describe(traduccion.error(), sentencia.texto)));
    }
}

TEST_P(Corpus, EachOtherStatementIsRefusedAtTheLatestWhenItsTextsAreBound)
{
    for (const SentenciaCorpus& sentencia : corpus()) {
        if (sentencia.veredicto != Veredicto::Rehusada)
            continue;
        const auto traduccion = traduce(sentencia);
        if (!traduccion)
            continue;
        EXPECT_TRUE(seRehusaAlLigar(traduccion.valor(), sentencia.texto)) << qPrintable(sentencia.rotulo()) << '\n'
                                                                          << qPrintable(sentencia.texto) << '\n'
                                                                          << traduccion.valor().sql.constData();
    }
}

INSTANTIATE_TEST_SUITE_P(Motores, Corpus, testing::ValuesIn(Motores));

TEST(CorpusTest, IsThere)
{
    EXPECT_GT(corpus().size(), 2000u);
}

TEST(CorpusTest, EachRefusalPointsIntoTheText)
{
    CatalogoPrueba tienda = catalogoDe(instalacion::baseTienda(), Motor::Sqlite);
    const Traductor traductor{tienda, Motor::Sqlite, ConfiguracionRegional::espania()};
    for (const SentenciaCorpus& sentencia : corpus()) {
        const auto traduccion = traductor.traduce(sentencia.texto);
        if (traduccion)
            continue;
        const ErrorSql& error = traduccion.error();
        EXPECT_GE(error.posicion, 0) << qPrintable(sentencia.rotulo());
        EXPECT_GE(error.longitud, 0) << qPrintable(sentencia.rotulo());
        EXPECT_LE(error.posicion + error.longitud, sentencia.texto.size()) << qPrintable(sentencia.rotulo());
        EXPECT_FALSE(error.mensaje.isEmpty()) << qPrintable(sentencia.rotulo());
    }
}

TEST(CorpusTest, PrintedAndParsedAgainEachStatementSaysTheSame)
{
    for (const SentenciaCorpus& sentencia : corpus()) {
        const auto arbol = parsea(sentencia.texto);
        if (!arbol)
            continue;
        const QString impresa = ast::imprime(arbol.valor());
        const auto otro = parsea(impresa);
        ASSERT_TRUE(otro.bien()) << qPrintable(sentencia.texto) << '\n' << qPrintable(impresa);
        EXPECT_TRUE(arbol.valor() == otro.valor()) << qPrintable(sentencia.texto) << '\n' << qPrintable(impresa);
    }
}

TEST(CorpusTest, TheShapeHasTheLiteralsOfTheLexer)
{
    ExtractorDeForma extractor;
    for (const SentenciaCorpus& sentencia : corpus()) {
        const auto tokens = tokeniza(sentencia.texto);
        if (!tokens)
            continue;
        ASSERT_TRUE(extractor.extrae(sentencia.texto)) << qPrintable(sentencia.texto);
        size_t visto = 0;
        for (const Token& token : tokens.valor()) {
            if (!esLiteral(token.clase))
                continue;
            ASSERT_LT(visto, extractor.literales().size()) << qPrintable(sentencia.texto);
            const Literal& literal = extractor.literales()[visto++];
            EXPECT_EQ(static_cast<int>(literal.clase) + static_cast<int>(ClaseToken::Entero), static_cast<int>(token.clase));
            EXPECT_EQ(literal.numero, token.numero);
            EXPECT_EQ(literal.fecha, token.fecha);
        }
        EXPECT_EQ(visto, extractor.literales().size()) << qPrintable(sentencia.texto);
    }
}

} // namespace
} // namespace kestrane::jet
