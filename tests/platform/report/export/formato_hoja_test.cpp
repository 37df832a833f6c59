#include "platform/report/export/formato_hoja.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

std::string formato(const Valor& valor, const FormatoValor& como)
{
    return formatoDeHoja(valor, como, ConfiguracionRegional::espania()).toStdString();
}

Valor dia(int anio, int mes, int numero, int hora = 0)
{
    return *Fecha::deCalendario(anio, mes, numero, hora);
}

TEST(FormatoHoja, NumbersHaveTheLayoutsDecimals)
{
    EXPECT_EQ(formato(1.5, {.formato = Formato::General}), "");
    EXPECT_EQ(formato(1.5, {.formato = Formato::Entero}), "#,##0");
    EXPECT_EQ(formato(1.5, {.formato = Formato::Numero, .decimales = 3}), "#,##0.000");
    EXPECT_EQ(formato(1.5, {.formato = Formato::Moneda}), "#,##0.00");
    EXPECT_EQ(formato(1.5, {.formato = Formato::Moneda, .decimales = 0}), "#,##0");
    EXPECT_EQ(formato(1.5, {.formato = Formato::Porcentaje}), "#,##0.00\" %\"");
    EXPECT_EQ(formato(1.5, {.formato = Formato::Moneda, .ceroEnBlanco = true}), "#,##0.00;-#,##0.00;");
}

TEST(FormatoHoja, AmountsHaveTheShopsDecimals)
{
    ConfiguracionRegional regional = ConfiguracionRegional::espania();
    const auto moneda = [&regional](int decimales) {
        regional.decimales = decimales;
        return formatoDeHoja(1.5, {.formato = Formato::Moneda}, regional).toStdString();
    };
    EXPECT_EQ(moneda(0), "#,##0");
    EXPECT_EQ(moneda(2), "#,##0.00");
    EXPECT_EQ(moneda(3), "#,##0.000");
}

TEST(FormatoHoja, DatesHaveTheOrderOfTheRegion)
{
    EXPECT_EQ(formato(dia(2024, 3, 5), {.formato = Formato::Fecha}), "dd/mm/yyyy");
    EXPECT_EQ(formato(dia(2024, 3, 5), {.formato = Formato::FechaHora}), "dd/mm/yyyy h:mm");
    EXPECT_EQ(formato(dia(2024, 3, 5), {.formato = Formato::Hora}), "h:mm");
    EXPECT_EQ(formato(dia(2024, 3, 5), {}), "dd/mm/yyyy");
    EXPECT_EQ(formato(dia(2024, 3, 5, 9), {}), "dd/mm/yyyy h:mm:ss");
    EXPECT_EQ(formatoDeHoja(dia(2024, 3, 5), {}, *ConfiguracionRegional::deNombre(u"en_US"_s)), "mm/dd/yyyy");
}

TEST(FormatoHoja, ATextHasNone)
{
    EXPECT_EQ(formato(u"a"_s, {.formato = Formato::Moneda}), "");
    EXPECT_EQ(formato(Valor{}, {.formato = Formato::Moneda}), "");
}

TEST(NumeroDeHoja, NumbersAndDatesAreFigures)
{
    EXPECT_EQ(numeroDeHoja(qint16{-3}), -3.0);
    EXPECT_EQ(numeroDeHoja(qint32{7}), 7.0);
    EXPECT_EQ(numeroDeHoja(1.5), 1.5);
    EXPECT_EQ(numeroDeHoja(dia(2024, 3, 5)), 45356.0);
    EXPECT_EQ(numeroDeHoja(dia(2024, 3, 5, 12)), 45356.5);
    EXPECT_EQ(numeroDeHoja(Fecha::deSerie(0, 21600)), 0.25) << "a time alone";
}

TEST(NumeroDeHoja, WhatASheetCountsOtherwiseIsText)
{
    EXPECT_EQ(numeroDeHoja(dia(1900, 2, 28)), std::nullopt);
    EXPECT_EQ(numeroDeHoja(dia(1900, 3, 1)), 61.0);
    EXPECT_EQ(numeroDeHoja(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(numeroDeHoja(true), std::nullopt);
    EXPECT_EQ(numeroDeHoja(u"7"_s), std::nullopt);
}

TEST(TextoDeHoja, IsCutAtWhatACellTakes)
{
    EXPECT_EQ(textoDeHoja(QString(40000, u'x')).size(), 32767);
    EXPECT_TRUE(textoDeHoja(QString(40000, u'x')).endsWith(u"x…"_s));
    EXPECT_EQ(textoDeHoja(QString(32767, u'x')), QString(32767, u'x'));
    const QString conCara = QString(32765, u'x') + u"\U0001F600"_s;
    EXPECT_EQ(textoDeHoja(conCara), conCara);
    EXPECT_EQ(textoDeHoja(conCara + u'x'), QString(32765, u'x') + u'…') << "half a letter is none";
    EXPECT_EQ(textoDeHoja(u"a\uFFFFb"_s), u"ab"_s);
}

TEST(NombreDeHoja, HasNothingThatSheetsDoNotTake)
{
    EXPECT_EQ(nombreDeHoja(u"Servicios"_s), u"Servicios"_s);
    EXPECT_EQ(nombreDeHoja(u"a/b\\c?d*e[f]g:h"_s), u"a-b-c-d-e-f-g-h"_s);
    EXPECT_EQ(nombreDeHoja(u"Ventas por familia y empleado, totales"_s), u"Ventas por familia y empleado,"_s);
    EXPECT_EQ(nombreDeHoja(u"'a'"_s), u"a"_s);
    EXPECT_EQ(nombreDeHoja(u"  "_s), u"Informe"_s);
}

} // namespace
} // namespace kestrane::report
