#include "platform/database/cursor.h"

#include "platform/database/motor_de_filas.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

class CursorTest : public testing::Test
{
protected:
    Cursor cursor(int filas, int errorEn = 0)
    {
        return {std::make_unique<SentenciaDeFilas>(filas, m_vista, errorEn), 1, AlmacenFilas::LimitePorDefecto};
    }

    Cursor::Anillo m_aMedias;
    SentenciaDeFilas::Vista m_vista;
};

TEST_F(CursorTest, RowsAreReadAsFarAsTheyAreAskedFor)
{
    Cursor tres = cursor(3);
    tres.ejecuta({}, m_aMedias);
    EXPECT_EQ(m_vista.pedidas, 0);
    EXPECT_TRUE(tres.hay(1));
    EXPECT_TRUE(tres.hay(1));
    EXPECT_EQ(m_vista.pedidas, 1);
    EXPECT_TRUE(tres.hay(3));
    EXPECT_FALSE(tres.hay(4));
    EXPECT_TRUE(tres.completo());
}

TEST_F(CursorTest, WhileRowsRemainItStandsInTheRing)
{
    Cursor tres = cursor(3);
    tres.ejecuta({}, m_aMedias);
    EXPECT_FALSE(m_aMedias.solo());
    EXPECT_EQ(&Cursor::de(*m_aMedias.siguiente()), &tres);
    tres.completa();
    EXPECT_TRUE(m_aMedias.solo());
}

TEST_F(CursorTest, TheFirstStepReadsOneRowAndTheSecondTheRest)
{
    Cursor cinco = cursor(5);
    cinco.ejecuta({}, m_aMedias);
    EXPECT_TRUE(cinco.avanza());
    EXPECT_EQ(m_vista.pedidas, 1);
    EXPECT_TRUE(cinco.avanza());
    EXPECT_EQ(m_vista.pedidas, 6);
    EXPECT_EQ(cinco.lector().valor(0), Valor{2});
}

TEST_F(CursorTest, PastTheLastRowItStays)
{
    Cursor una = cursor(1);
    una.ejecuta({}, m_aMedias);
    EXPECT_TRUE(una.avanza());
    EXPECT_FALSE(una.avanza());
    EXPECT_FALSE(una.avanza());
}

TEST_F(CursorTest, AfterARowThatCannotBeReadEachUseMeetsTheErrorAgain)
{
    Cursor rota = cursor(5, 3);
    rota.ejecuta({}, m_aMedias);
    EXPECT_TRUE(rota.avanza());
    EXPECT_THROW(rota.completa(), ErrorMotor);
    EXPECT_TRUE(m_aMedias.solo());
    EXPECT_EQ(m_vista.reinicios, 1);
    EXPECT_FALSE(rota.completo());
    EXPECT_THROW(rota.completa(), ErrorMotor);
    EXPECT_THROW(static_cast<void>(rota.hay(1)), ErrorMotor);
    EXPECT_THROW(static_cast<void>(rota.avanza()), ErrorMotor);
    EXPECT_EQ(m_vista.pedidas, 3) << "the engine is not asked again";
    EXPECT_EQ(rota.lector().valor(0), Valor{1}) << "the current row stays";
}

TEST_F(CursorTest, CompletedForSomebodyElseItKeepsTheErrorForItsOwnUser)
{
    Cursor rota = cursor(5, 3);
    rota.ejecuta({}, m_aMedias);
    rota.completaCallando();
    EXPECT_TRUE(m_aMedias.solo());
    EXPECT_THROW(static_cast<void>(rota.avanza()), ErrorMotor);
}

TEST_F(CursorTest, LetGoAndRunAgainItHasForgottenTheError)
{
    Cursor rota = cursor(5, 3);
    rota.ejecuta({}, m_aMedias);
    rota.completaCallando();
    rota.suelta();
    rota.ejecuta({}, m_aMedias);
    EXPECT_TRUE(rota.hay(2));
}

TEST_F(CursorTest, LetGoItEndsTheEnginesCursorOnlyWhereOneIsOpen)
{
    Cursor tres = cursor(3);
    tres.ejecuta({}, m_aMedias);
    EXPECT_TRUE(tres.hay(1));
    tres.suelta();
    EXPECT_EQ(m_vista.reinicios, 1);
    EXPECT_TRUE(m_aMedias.solo());
    tres.ejecuta({}, m_aMedias);
    tres.completa();
    EXPECT_EQ(m_vista.reinicios, 2) << "the last row ends it";
    tres.suelta();
    EXPECT_EQ(m_vista.reinicios, 2);
    EXPECT_EQ(tres.leidas(), 0);
}

TEST_F(CursorTest, SharedRowsOutliveItsUseAndItsPlaceIsKept)
{
    Cursor tres = cursor(3);
    tres.ejecuta({}, m_aMedias);
    EXPECT_TRUE(tres.avanza());
    EXPECT_TRUE(tres.avanza());
    const auto filas = tres.comparte();
    EXPECT_EQ(tres.lector().valor(0), Valor{2});
    tres.suelta();
    EXPECT_EQ(filas->filas(), 3);
    Cursor otro = cursor(0);
    otro.recuerda(filas);
    EXPECT_EQ(m_vista.ejecutadas, 1);
    EXPECT_TRUE(otro.avanza());
    EXPECT_EQ(otro.lector().valor(0), Valor{1});
    EXPECT_TRUE(otro.hay(3));
}

} // namespace
} // namespace kestrane::database
