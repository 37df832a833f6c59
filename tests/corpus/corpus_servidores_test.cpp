// The same statements on the embedded database and on the two servers: the same rows, in the same order.

#include "corpus/condiciones.h"
#include "corpus/corpus.h"
#include "corpus/esperadas.h"
#include "corpus/frontera.h"
#include "corpus/tienda_corpus.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {
namespace {

class CorpusEnServidores : public testing::TestWithParam<std::string>
{
protected:
    struct Motores
    {
        TiendaCorpus sqlite{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
        TiendaCorpus postgresql{jet::Motor::PostgreSql, TiendaCorpus::Contenido::Llena};
        TiendaCorpus mariadb{jet::Motor::MariaDb, TiendaCorpus::Contenido::Llena};
    };

    // Filling three shops is slow, and every statement finds them as they were.
    static void SetUpTestSuite() { s_motores = std::make_unique<Motores>(); }
    static void TearDownTestSuite() { s_motores.reset(); }

    static void compara(const Respuesta& esperada, const Respuesta& respuesta, const SentenciaCorpus& sentencia, const char* motor)
    {
        const std::string quien = std::string{motor} + ": " + sentencia.nombre.toStdString();
        EXPECT_EQ(respuesta.error.empty(), esperada.error.empty()) << quien << ": " << respuesta.error;
        EXPECT_EQ(respuesta.afectadas, esperada.afectadas) << quien;
        EXPECT_EQ(respuesta.filas, esperada.filas) << quien;
    }

    static std::unique_ptr<Motores> s_motores;
};

std::unique_ptr<CorpusEnServidores::Motores> CorpusEnServidores::s_motores;

TEST_P(CorpusEnServidores, EveryStatementGivesTheSameRowsOnTheThreeEngines)
{
    for (const SentenciaCorpus& sentencia : sentenciasDe(GetParam())) {
        const Respuesta esperada = s_motores->sqlite.ejecuta(sentencia);
        EXPECT_EQ(esperada.error.empty(), sentencia.veredicto == SentenciaCorpus::Veredicto::Corre)
            << sentencia.nombre.toStdString();
        compara(esperada, s_motores->postgresql.ejecuta(sentencia), sentencia, "PostgreSQL");
        compara(esperada, s_motores->mariadb.ejecuta(sentencia), sentencia, "MariaDB");
    }
}

TEST(CondicionesEnServidores, GeneratedConditionsChooseTheSameRowsOnTheThreeEngines)
{
    TiendaCorpus sqlite{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    TiendaCorpus postgresql{jet::Motor::PostgreSql, TiendaCorpus::Contenido::Llena};
    TiendaCorpus mariadb{jet::Motor::MariaDb, TiendaCorpus::Contenido::Llena};
    for (const QString& condicion : condicionesGeneradas(500)) {
        for (const auto* forma : {u"%1", u"not (%1)", u"(%1) is null"}) {
            SentenciaCorpus consulta;
            consulta.texto =
                QStringLiteral("select numero from cabecera_factura where ") + QStringView{forma}.toString().arg(condicion);
            const Respuesta esperada = sqlite.ejecuta(consulta);
            EXPECT_EQ(postgresql.ejecuta(consulta), esperada) << "PostgreSQL: " << consulta.texto.toStdString();
            EXPECT_EQ(mariadb.ejecuta(consulta), esperada) << "MariaDB: " << consulta.texto.toStdString();
        }
    }
}

class EnCadaServidor : public testing::TestWithParam<jet::Motor>
{
};

TEST_P(EnCadaServidor, TheRowsAreThoseWorkedOutByHand)
{
    TiendaCorpus tienda{GetParam(), TiendaCorpus::Contenido::Llena};
    for (const Esperada& esperada : respuestasEsperadas()) {
        const Respuesta respuesta = tienda.ejecuta(consultaDe(esperada.sentencia));
        EXPECT_EQ(respuesta.error, "") << esperada.sentencia.toStdString();
        EXPECT_EQ(respuesta.filas, esperada.filas) << esperada.sentencia.toStdString();
    }
}

TEST_P(EnCadaServidor, TheLargestStatementOfEachFormRunsAndTheNextIsRefused)
{
    TiendaCorpus sqlite{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    TiendaCorpus tienda{GetParam(), TiendaCorpus::Contenido::Llena};
    for (const FormaDeSentencia& forma : formasDeSentencia()) {
        const Frontera frontera = fronteraDe(forma, sqlite);
        const Respuesta respuesta = respuestaDe(forma, frontera.mayor, tienda);
        EXPECT_EQ(respuesta.error.substr(0, 500), "") << forma.nombre << ' ' << frontera.mayor;
        EXPECT_EQ(respuesta.filas, frontera.respuesta.filas) << forma.nombre;
        EXPECT_EQ(respuestaDe(forma, frontera.mayor + 1, tienda).error, frontera.rechazo) << forma.nombre;
    }
}

TEST_P(EnCadaServidor, WhatNoEngineCanFinishFailsAlike)
{
    TiendaCorpus tienda{GetParam(), TiendaCorpus::Contenido::Llena};
    for (const Fallida& fallida : sentenciasQueFallan()) {
        const std::string error = tienda.ejecuta(consultaDe(fallida.sentencia)).error;
        EXPECT_TRUE(error.starts_with("ERROR -2147217900: ")) << fallida.sentencia.toStdString() << ": " << error;
        EXPECT_NE(error.find(fallida.motivo), std::string::npos) << fallida.sentencia.toStdString() << ": " << error;
    }
}

INSTANTIATE_TEST_SUITE_P(Servidores, EnCadaServidor, testing::Values(jet::Motor::PostgreSql, jet::Motor::MariaDb));

INSTANTIATE_TEST_SUITE_P(Areas, CorpusEnServidores, testing::ValuesIn(areasDelCorpus()),
                         [](const auto& area) { return area.param; });

} // namespace
} // namespace kestrane::prueba
