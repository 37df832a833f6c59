#include "platform/database/anticipacion.h"

#include "platform/database/motor_de_filas.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

/// Ten header rows with the keys 1 to 10; the first is the current one.
class AnticipacionTest : public testing::Test
{
protected:
    AnticipacionTest()
    {
        m_cabeceras.ejecuta({}, m_aMedias);
        m_cabeceras.completa();
        static_cast<void>(m_cabeceras.avanza());
    }
    Anticipacion anuncio() { return {this, m_cabeceras, 0, u"select * from l where n = "_s, u" order by c"_s, m_regional}; }

    Cursor::Anillo m_aMedias;
    SentenciaDeFilas::Vista m_vista;
    Cursor m_cabeceras{std::make_unique<SentenciaDeFilas>(10, m_vista), 1, AlmacenFilas::LimitePorDefecto};
    ConfiguracionRegional m_regional = ConfiguracionRegional::espania();
};

using Claves = std::vector<QString>;

TEST_F(AnticipacionTest, OnlyAStatementOfItsHeadAndTailWasAnnounced)
{
    const Anticipacion anuncio = this->anuncio();
    EXPECT_EQ(anuncio.clave(u"select * from l where n = 5 order by c"), QStringView{u"5"});
    for (const QString& otra : {u"select * from l where n = 5"_s, u"select * from m where n = 5 order by c"_s,
                                u"select * from l where n =  order by c"_s, u"select * from l where n = order by c"_s})
        EXPECT_EQ(anuncio.clave(otra), std::nullopt) << qPrintable(otra);
    EXPECT_EQ(anuncio.sentencia(u"5"), u"select * from l where n = 5 order by c");
}

TEST_F(AnticipacionTest, KeysComeInChunksFromTheOneAskedFor)
{
    Anticipacion anuncio = this->anuncio();
    EXPECT_EQ(anuncio.siguientes(u"1", 4), (Claves{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
    EXPECT_EQ(anuncio.siguientes(u"6", 4), (Claves{u"6"_s, u"7"_s, u"8"_s, u"9"_s})) << "5 was passed over";
    EXPECT_EQ(anuncio.siguientes(u"10", 4), Claves{u"10"_s});
    EXPECT_EQ(anuncio.siguientes(u"11", 4), Claves{});
}

TEST_F(AnticipacionTest, AKeyThatIsNotAmongTheNextTakesNothingFromThem)
{
    Anticipacion anuncio = this->anuncio();
    EXPECT_EQ(anuncio.siguientes(u"99", 4), Claves{});
    EXPECT_EQ(anuncio.siguientes(u"2", 4), (Claves{u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
}

TEST_F(AnticipacionTest, ItBeginsAtTheCurrentRow)
{
    static_cast<void>(m_cabeceras.avanza());
    static_cast<void>(m_cabeceras.avanza());
    Anticipacion anuncio = this->anuncio();
    EXPECT_EQ(anuncio.siguientes(u"3", 2), (Claves{u"3"_s, u"4"_s}));
}

TEST_F(AnticipacionTest, AfterAFailureAsManyKeysAreSentAlone)
{
    Anticipacion anuncio = this->anuncio();
    EXPECT_EQ(anuncio.siguientes(u"1", 3).size(), 3u);
    anuncio.fallo(2);
    EXPECT_EQ(anuncio.siguientes(u"2", 3), Claves{});
    EXPECT_EQ(anuncio.siguientes(u"3", 3), Claves{});
    EXPECT_EQ(anuncio.siguientes(u"4", 3), (Claves{u"4"_s, u"5"_s, u"6"_s}));
}

TEST_F(AnticipacionTest, WhatIsReadAheadIsServedUntilTheNextChunkOrForgotten)
{
    Anticipacion anuncio = this->anuncio();
    const auto filas = std::make_shared<const AlmacenFilas>(1);
    anuncio.guarda({u"1"_s, u"2"_s}, {filas, filas});
    EXPECT_EQ(anuncio.servida(u"2"), filas);
    EXPECT_EQ(anuncio.servida(u"3"), nullptr);
    anuncio.guarda({u"3"_s}, {filas});
    EXPECT_EQ(anuncio.servida(u"2"), nullptr);
    anuncio.olvida();
    EXPECT_EQ(anuncio.servida(u"3"), nullptr);
}

} // namespace
} // namespace kestrane::database
