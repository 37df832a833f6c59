#include "platform/database/conversion_columna.h"

#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;
using jet::Columna;
using jet::TipoColumna;

const ConfiguracionRegional& regional()
{
    static const ConfiguracionRegional espania = ConfiguracionRegional::espania();
    return espania;
}

Valor en(TipoColumna tipo, const Valor& valor)
{
    return valorParaColumna(valor, Columna{u"c"_s, tipo, tipo == TipoColumna::Texto ? 5 : 0, true}, regional());
}

qint32 errorEn(TipoColumna tipo, const Valor& valor)
{
    try {
        static_cast<void>(en(tipo, valor));
        return 0;
    } catch (const ErrorEjecucion& error) {
        EXPECT_TRUE(error.descripcion().contains(u"\"c\"")) << qPrintable(error.descripcion());
        return error.numero();
    }
}

TEST(ConversionColumna, WhatCannotBeConvertedIsRefusedWithTheColumnsName)
{
    EXPECT_EQ(errorEn(TipoColumna::Doble, u"doce"_s), ErrorEjecucion::TiposNoCoinciden);
    EXPECT_EQ(errorEn(TipoColumna::Doble, u""_s), ErrorEjecucion::TiposNoCoinciden);
    EXPECT_EQ(errorEn(TipoColumna::Doble, std::numeric_limits<double>::infinity()), ErrorEjecucion::Desbordamiento);
    EXPECT_EQ(errorEn(TipoColumna::FechaHora, u"31/02/2024"_s), ErrorEjecucion::TiposNoCoinciden);
    EXPECT_EQ(errorEn(TipoColumna::Entero32, 2147483648.0), ErrorEjecucion::Desbordamiento);
    EXPECT_EQ(errorEn(TipoColumna::Entero16, 32768), ErrorEjecucion::Desbordamiento);
    EXPECT_EQ(errorEn(TipoColumna::Texto, u"seis!!"_s), ErrorEjecucion::SentenciaRechazada);
}

TEST(ConversionColumna, ATextWithTheCharacterZeroIsRefused)
{
    const QString texto = QString::fromUtf16(u"a\0b", 3);
    EXPECT_EQ(errorEn(TipoColumna::Texto, texto), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(errorEn(TipoColumna::Memo, texto), ErrorEjecucion::SentenciaRechazada);
}

TEST(ConversionColumna, ATextTooWideNamesTheWidths)
{
    try {
        static_cast<void>(en(TipoColumna::Texto, u"demasiado"_s));
        FAIL();
    } catch (const ErrorEjecucion& error) {
        EXPECT_TRUE(error.descripcion().contains(u"9 caracteres"));
        EXPECT_TRUE(error.descripcion().contains(u"caben 5"));
    }
}

TEST(ConversionColumna, WidthsCountCharacters)
{
    EXPECT_EQ(en(TipoColumna::Texto, u"ñññññ"_s), Valor{u"ñññññ"_s});
    const QString caras = u"\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600"_s;
    EXPECT_EQ(en(TipoColumna::Texto, caras), Valor{caras});
}

TEST(ConversionColumna, NullIsTakenOnlyWhereTheColumnTakesIt)
{
    EXPECT_EQ(en(TipoColumna::Doble, Valor{}), Valor{});
    EXPECT_THROW(static_cast<void>(valorParaColumna(Valor{}, Columna{u"c"_s, TipoColumna::SiNo, 0, false}, regional())),
                 ErrorEjecucion);
}

TEST(ConversionColumna, TextsAreReadByTheRegionalSettings)
{
    EXPECT_EQ(en(TipoColumna::Doble, u"12,5"_s), Valor{12.5});
    EXPECT_EQ(en(TipoColumna::Entero32, u"7"_s), Valor{7});
    EXPECT_EQ(en(TipoColumna::FechaHora, u"1/2/2000"_s), Valor{*Fecha::deCalendario(2000, 2, 1)});
    EXPECT_EQ(en(TipoColumna::FechaHora, u"09:05"_s), Valor{Fecha::deSerie(0, 9 * 3600 + 5 * 60)}) << "a bare time";
}

TEST(ConversionColumna, NumbersAndDatesAreWrittenByTheRegionalSettings)
{
    EXPECT_EQ(en(TipoColumna::Texto, 12.5), Valor{u"12,5"_s});
    EXPECT_EQ(en(TipoColumna::Texto, 7), Valor{u"7"_s});
    EXPECT_EQ(en(TipoColumna::Memo, *Fecha::deCalendario(2024, 3, 5)), Valor{u"05/03/2024"_s});
}

TEST(ConversionColumna, DoublesRoundHalfToEven)
{
    EXPECT_EQ(en(TipoColumna::Entero32, 2.5), Valor{2});
    EXPECT_EQ(en(TipoColumna::Entero32, 3.5), Valor{4});
    EXPECT_EQ(en(TipoColumna::Entero16, -2.5), Valor{qint16{-2}});
}

TEST(ConversionColumna, AFlagIsMinusOneOrZeroAsANumber)
{
    EXPECT_EQ(en(TipoColumna::Doble, true), Valor{-1.0});
    EXPECT_EQ(en(TipoColumna::Entero16, true), Valor{qint16{-1}});
    EXPECT_EQ(en(TipoColumna::SiNo, 1), Valor{true});
    EXPECT_EQ(en(TipoColumna::SiNo, 0.0), Valor{false});
}

} // namespace
} // namespace kestrane::database
