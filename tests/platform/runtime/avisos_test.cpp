#include "platform/runtime/avisos.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class AvisosTest : public testing::Test
{
protected:
    AvisosTest() { m_errores.open(QIODevice::WriteOnly); }

    Avisos avisos(DestinoErrores destino)
    {
        return Avisos{u"listados-lote"_s, m_errores, destino, [this] { return m_ahora; }};
    }

    QBuffer m_errores;
    qint64 m_ahora = 5000;
};

TEST_F(AvisosTest, WithoutATerminalNothingButSentencesIsSaid)
{
    {
        Avisos suyos = avisos(DestinoErrores::Fichero);
        suyos.empieza(u"Contando"_s);
        m_ahora += 60000;
        suyos.avanza();
        suyos.late();
        suyos.di(u"Ya está."_s);
        suyos.borra();
    }
    EXPECT_EQ(m_errores.data(), "listados-lote: Ya está.\n");
}

TEST_F(AvisosTest, InTheFirstSecondThereIsNoLine)
{
    {
        Avisos suyos = avisos(DestinoErrores::Terminal);
        suyos.empieza(u"Contando"_s);
        m_ahora += 999;
        suyos.avanza();
        suyos.late();
    }
    EXPECT_EQ(m_errores.data(), "");
}

TEST_F(AvisosTest, AfterwardsStepsAreCountedFiveTimesASecondAndTheLineVanishesAtTheEnd)
{
    {
        Avisos suyos = avisos(DestinoErrores::Terminal);
        suyos.empieza(u"Contando"_s);
        m_ahora += 1000;
        suyos.avanza();
        suyos.avanza();
        EXPECT_EQ(m_errores.data(), "Contando: 1");
        m_ahora += 200;
        suyos.avanza();
        EXPECT_EQ(m_errores.data(), "Contando: 1\r\x1b[KContando: 3");
    }
    EXPECT_EQ(m_errores.data(), "Contando: 1\r\x1b[KContando: 3\r\x1b[K");
}

TEST_F(AvisosTest, WithoutStepsItBeatsAllTheSame)
{
    Avisos suyos = avisos(DestinoErrores::Terminal);
    suyos.late();
    suyos.empieza(u"Esperando"_s);
    m_ahora += 1000;
    suyos.late();
    EXPECT_EQ(m_errores.data(), "Esperando...");
}

TEST_F(AvisosTest, TheSecondIsThatOfTheRunNotOfEachWork)
{
    Avisos suyos = avisos(DestinoErrores::Terminal);
    suyos.empieza(u"Uno"_s);
    m_ahora += 600;
    suyos.late();
    suyos.empieza(u"Dos"_s);
    m_ahora += 600;
    suyos.late();
    EXPECT_EQ(m_errores.data(), "Dos...");
}

TEST_F(AvisosTest, ASentenceWipesTheLineWhichComesBackBelow)
{
    Avisos suyos = avisos(DestinoErrores::Terminal);
    suyos.empieza(u"Contando"_s);
    m_ahora += 1000;
    suyos.late();
    suyos.di(u"No hay datos para ser mostrados."_s);
    m_ahora += 200;
    suyos.late();
    EXPECT_EQ(m_errores.data(), "Contando...\r\x1b[Klistados-lote: No hay datos para ser mostrados.\nContando...");
    suyos.borra();
    m_ahora += 200;
    suyos.late();
    EXPECT_TRUE(m_errores.data().endsWith("\nContando...\r\x1b[K"));
}

TEST_F(AvisosTest, ResultsOnTheSameTerminalEndIt)
{
    Avisos suyos = avisos(DestinoErrores::TerminalConResultados);
    suyos.empieza(u"Contando"_s);
    m_ahora += 1000;
    suyos.late();
    suyos.empiezanLosResultados();
    m_ahora += 1000;
    suyos.empieza(u"Más"_s);
    suyos.late();
    EXPECT_EQ(m_errores.data(), "Contando...\r\x1b[K");
}

TEST_F(AvisosTest, ResultsElsewhereLeaveIt)
{
    Avisos suyos = avisos(DestinoErrores::Terminal);
    suyos.empieza(u"Contando"_s);
    suyos.empiezanLosResultados();
    m_ahora += 1000;
    suyos.late();
    EXPECT_EQ(m_errores.data(), "Contando...");
}

} // namespace
} // namespace kestrane
