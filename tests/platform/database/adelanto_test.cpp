#include "platform/database/adelanto.h"

#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/database/sqlite/sqlite_motor.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

class AdelantoTest : public testing::Test
{
protected:
    /// The second column of what each statement gives, one text for each; "no" when they cannot be asked for together.
    QStringList leidas(const std::vector<QString>& sentencias)
    {
        auto traduccion = m_traductor.traduce(sentencias.front());
        if (!traduccion)
            return {u"no es una sentencia"_s};
        const PlanSentencia plan{std::move(traduccion).valor(), m_motor.catalogo().tabla(u"t")};
        const auto respuestas = m_adelanto.lee(sentencias, plan, m_aMedias, AlmacenFilas::LimitePorDefecto, m_bytesMaximos);
        if (!respuestas)
            return {u"no"_s};
        QStringList textos;
        for (const auto& filas : *respuestas) {
            QString texto;
            for (LectorFilas lector{*filas}; lector.siguiente();)
                texto += lector.valor(1).texto();
            textos << texto;
        }
        return textos;
    }
    static std::vector<QString> con(const QString& cabeza, std::initializer_list<const char16_t*> claves, const QString& cola = {})
    {
        std::vector<QString> sentencias;
        for (const char16_t* const clave : claves)
            sentencias.push_back(cabeza + QString::fromUtf16(clave) + cola);
        return sentencias;
    }

    sqlite::BaseDePrueba m_base{"create table t (a LONG, b TEXT(50)); "
                                "insert into t values (2, 'x'), (1, 'y'), (2, 'z'), (3, 'w'), (null, 'n'), (1, 'v')"};
    sqlite::SqliteMotor m_motor{{m_base.fichero()}};
    jet::Traductor m_traductor{m_motor.catalogo(), jet::Motor::Sqlite, ConfiguracionRegional::espania()};
    CacheFormas m_formas{100, 1'000'000};
    ConfiguracionRegional m_regional = ConfiguracionRegional::espania();
    Ligador m_ligador{m_regional};
    Adelanto m_adelanto{m_motor, m_traductor, m_formas, m_ligador};
    Cursor::Anillo m_aMedias;
    qsizetype m_bytesMaximos = 1'000'000;
};

TEST_F(AdelantoTest, StatementsThatDifferInMoreThanOneNumberAreNotAskedForTogether)
{
    EXPECT_EQ(leidas({u"select * from t where a = 1 and b like 'x'"_s, u"select * from t where a = 2 and b like 'y'"_s}),
              QStringList{u"no"_s});
    EXPECT_EQ(leidas({u"select * from t where a = 1"_s, u"select * from t where a = 2 and b like 'y'"_s}), QStringList{u"no"_s});
    EXPECT_EQ(leidas({u"select * from t where b = 'x'"_s, u"select * from t where b = 'y'"_s}), QStringList{u"no"_s}) << "texts";
    EXPECT_EQ(leidas({u"select * from t where a = 1"_s, u"select * from t where a = 1"_s}), QStringList{u"no"_s})
        << "nothing differs";
}

TEST_F(AdelantoTest, StatementsOfOneRowForManyAreNotAskedForTogether)
{
    EXPECT_EQ(leidas(con(u"select count(a) as n, max(b) as m from t where a = "_s, {u"1", u"2"})), QStringList{u"no"_s});
    EXPECT_EQ(leidas(con(u"select top 1 * from t where a = "_s, {u"1", u"2"})), QStringList{u"no"_s});
    EXPECT_EQ(leidas(con(u"select * from t where a <> "_s, {u"1", u"2"})), QStringList{u"no"_s});
}

TEST_F(AdelantoTest, EachGetsItsOwnRowsInTheStatementsOrder)
{
    EXPECT_EQ(leidas(con(u"select * from t where a = "_s, {u"2", u"1", u"9", u"3"})),
              (QStringList{u"xz"_s, u"yv"_s, u""_s, u"w"_s}));
    EXPECT_EQ(leidas(con(u"select * from t where a = "_s, {u"2", u"1"}, u" order by b desc"_s)), (QStringList{u"zx"_s, u"yv"_s}));
    EXPECT_EQ(leidas(con(u"select * from t where b like '%' and a = "_s, {u"1", u"2"})), (QStringList{u"yv"_s, u"xz"_s}));
}

TEST_F(AdelantoTest, TheSameRowsComeWhateverTheNumberOfKeys)
{
    for (const int cuantas : {2, 3, 4, 5, 16, 17, 201}) {
        std::vector<QString> sentencias;
        for (int i = 0; i < cuantas; ++i)
            sentencias.push_back(u"select * from t where a = "_s + QString::number(i + 1));
        const QStringList textos = leidas(sentencias);
        ASSERT_EQ(textos.size(), cuantas);
        EXPECT_EQ(textos[0], u"yv");
        EXPECT_EQ(textos[1], u"xz");
    }
}

TEST_F(AdelantoTest, TwoSpellingsOfOneNumberBothGetItsRows)
{
    EXPECT_EQ(leidas(con(u"select * from t where a = "_s, {u"3", u"2", u"02"})), (QStringList{u"w"_s, u"xz"_s, u"xz"_s}));
}

TEST_F(AdelantoTest, WhatTakesMoreMemoryThanThereIsIsNotKept)
{
    const auto sentencias = con(u"select * from t where a = "_s, {u"2", u"1"});
    m_bytesMaximos = 10;
    EXPECT_EQ(leidas(sentencias), QStringList{u"no"_s});
    m_bytesMaximos = 1000;
    EXPECT_EQ(leidas(sentencias), (QStringList{u"xz"_s, u"yv"_s}));
}

TEST_F(AdelantoTest, TheRowsHaveTheirIdentity)
{
    const std::vector<QString> sentencias = con(u"select * from t where a = "_s, {u"3", u"1"});
    auto traduccion = m_traductor.traduce(sentencias.front());
    ASSERT_TRUE(traduccion.bien());
    const PlanSentencia plan{std::move(traduccion).valor(), m_motor.catalogo().tabla(u"t")};
    const auto respuestas = m_adelanto.lee(sentencias, plan, m_aMedias, AlmacenFilas::LimitePorDefecto, m_bytesMaximos);
    ASSERT_TRUE(respuestas);
    LectorFilas lector{*respuestas->front()};
    ASSERT_TRUE(lector.siguiente());
    EXPECT_EQ(lector.valor(plan.columnaIdentidad()), Valor{4.0});
}

} // namespace
} // namespace kestrane::database
