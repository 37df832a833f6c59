#include "platform/database/respuestas.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

std::shared_ptr<const AlmacenFilas> unaFila(qsizetype letras)
{
    auto filas = std::make_shared<AlmacenFilas>(1);
    filas->empiezaFila();
    filas->ponTexto(QString(letras, u'x'));
    filas->terminaFila();
    return filas;
}

class RespuestasTest : public testing::Test
{
protected:
    PlanSentencia m_plan{jet::Traduccion{}, nullptr};
    Respuestas m_respuestas{20'000};
};

TEST_F(RespuestasTest, AnAnswerIsKnownByItsTextAlone)
{
    EXPECT_EQ(m_respuestas.busca(u"select 1"_s), nullptr);
    const auto filas = unaFila(3);
    m_respuestas.guarda(u"select 1"_s, m_plan, filas);
    ASSERT_NE(m_respuestas.busca(u"select 1"_s), nullptr);
    EXPECT_EQ(m_respuestas.busca(u"select 1"_s)->filas, filas);
    EXPECT_EQ(m_respuestas.busca(u"select 1"_s)->plan, &m_plan);
    EXPECT_EQ(m_respuestas.busca(u"SELECT 1"_s), nullptr);
}

TEST_F(RespuestasTest, ATextIsRepeatedFromItsSecondTimeOn)
{
    EXPECT_FALSE(m_respuestas.repetida(u"a"_s));
    EXPECT_FALSE(m_respuestas.repetida(u"b"_s));
    EXPECT_TRUE(m_respuestas.repetida(u"a"_s));
    EXPECT_TRUE(m_respuestas.repetida(u"a"_s));
}

TEST_F(RespuestasTest, PastTheBoundTheOnesUsedLongestAgoGo)
{
    for (int i = 0; i < 50; ++i) {
        m_respuestas.guarda(QString::number(i), m_plan, unaFila(100));
        EXPECT_NE(m_respuestas.busca(u"0"_s), nullptr) << "used each time";
    }
    EXPECT_LE(m_respuestas.bytes(), 20'000);
    EXPECT_EQ(m_respuestas.busca(u"1"_s), nullptr);
    EXPECT_NE(m_respuestas.busca(u"49"_s), nullptr);
}

TEST_F(RespuestasTest, AnAnswerThatWouldTakeMuchOfTheBoundIsNotKept)
{
    m_respuestas.guarda(u"grande"_s, m_plan, unaFila(10'000));
    EXPECT_EQ(m_respuestas.busca(u"grande"_s), nullptr);
    EXPECT_EQ(m_respuestas.bytes(), 0);
}

TEST_F(RespuestasTest, ThePlanOfAnAnswerIsInUseAsLongAsItIsKept)
{
    m_respuestas.guarda(u"a"_s, m_plan, unaFila(1));
    EXPECT_TRUE(m_plan.enUso());
    m_respuestas.vacia();
    EXPECT_FALSE(m_plan.enUso());
    EXPECT_EQ(m_respuestas.busca(u"a"_s), nullptr);
    EXPECT_FALSE(m_respuestas.repetida(u"a"_s));
}

} // namespace
} // namespace kestrane::database
