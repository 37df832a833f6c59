#include "corpus/corpus.h"

#include "corpus/esperadas.h"
#include "corpus/tienda_corpus.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {
namespace {

using Veredicto = SentenciaCorpus::Veredicto;

std::vector<SentenciaCorpus> conVeredicto(const std::string& area, Veredicto veredicto)
{
    std::vector<SentenciaCorpus> sentencias = sentenciasDe(area);
    std::erase_if(sentencias, [&](const SentenciaCorpus& sentencia) { return sentencia.veredicto != veredicto; });
    return sentencias;
}

class Corpus : public testing::TestWithParam<std::string>
{
};

TEST_P(Corpus, WhatRunsRunsOnTheSmallShopAndOnAnEmptyOne)
{
    TiendaCorpus llena{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    TiendaCorpus vacia{jet::Motor::Sqlite, TiendaCorpus::Contenido::Vacia};
    for (const SentenciaCorpus& sentencia : conVeredicto(GetParam(), Veredicto::Corre)) {
        EXPECT_EQ(llena.ejecuta(sentencia).error, "") << sentencia.nombre.toStdString();
        EXPECT_EQ(vacia.ejecuta(sentencia).error, "") << sentencia.nombre.toStdString();
    }
}

TEST_P(Corpus, WhatIsRefusedIsRefusedBeforeTheEngineRunsItOnEmptyTablesToo)
{
    TiendaCorpus llena{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    TiendaCorpus vacia{jet::Motor::Sqlite, TiendaCorpus::Contenido::Vacia};
    for (const SentenciaCorpus& sentencia : conVeredicto(GetParam(), Veredicto::Rehusada)) {
        for (TiendaCorpus* tienda : {&llena, &vacia}) {
            const int antes = tienda->ejecucionesDelMotor();
            const std::string error = tienda->ejecuta(sentencia).error;
            EXPECT_TRUE(error.starts_with("ERROR -2147217900: ")) << sentencia.nombre.toStdString() << ": " << error;
            EXPECT_EQ(tienda->ejecucionesDelMotor(), antes) << sentencia.nombre.toStdString();
        }
    }
}

TEST(RespuestasEsperadas, TheRowsAreThoseWorkedOutByHand)
{
    TiendaCorpus tienda{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    for (const Esperada& esperada : respuestasEsperadas()) {
        const Respuesta respuesta = tienda.ejecuta(consultaDe(esperada.sentencia));
        EXPECT_EQ(respuesta.error, "") << esperada.sentencia.toStdString();
        EXPECT_EQ(respuesta.filas, esperada.filas) << esperada.sentencia.toStdString();
    }
}

TEST(RespuestasEsperadas, WhatNoEngineCanFinishFailsAlike)
{
    TiendaCorpus tienda{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    for (const Fallida& fallida : sentenciasQueFallan()) {
        const std::string error = tienda.ejecuta(consultaDe(fallida.sentencia)).error;
        EXPECT_TRUE(error.starts_with("ERROR -2147217900: ")) << fallida.sentencia.toStdString() << ": " << error;
        EXPECT_NE(error.find(fallida.motivo), std::string::npos) << fallida.sentencia.toStdString() << ": " << error;
    }
}

TEST(AreasDelCorpus, HoldEveryAreaAndMoreThanTwoThousandStatements)
{
    size_t sentencias = 0;
    for (const std::string& area : areasDelCorpus()) {
        EXPECT_FALSE(sentenciasDe(area).empty()) << area;
        sentencias += sentenciasDe(area).size();
    }
    EXPECT_GE(areasDelCorpus().size(), 28U);
    EXPECT_GT(sentencias, 2000U);
}

INSTANTIATE_TEST_SUITE_P(Areas, Corpus, testing::ValuesIn(areasDelCorpus()), [](const auto& area) { return area.param; });

} // namespace
} // namespace kestrane::prueba
