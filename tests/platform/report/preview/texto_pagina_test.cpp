#include "platform/report/preview/texto_pagina.h"

#include "platform/report/preview/fuente_de_prueba.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::FuenteDePrueba;

TextoPagina texto(const QStringList& lineas)
{
    return TextoPagina{FuenteDePrueba{QList<QStringList>{lineas}}.pagina(0)};
}

TEST(TextoPagina, IsReadLineByLineFromLeftToRight)
{
    const TextoPagina pagina = texto({u"uno|dos"_s, u"tres"_s});
    ASSERT_EQ(pagina.tramos(), 4);
    EXPECT_EQ(pagina.texto(0), u"uno"_s);
    EXPECT_EQ(pagina.texto(1), u"dos"_s);
    EXPECT_EQ(pagina.texto(2), u"tres"_s);
    EXPECT_EQ(pagina.texto(3), u"Página 1 de 1"_s);
}

TEST(TextoPagina, TheOrderOfPaintingDoesNotCount)
{
    PaginaCompuesta pagina = FuenteDePrueba{{{u"uno|dos"_s, u"tres"_s}}}.pagina(0);
    std::reverse(pagina.primitivas.begin(), pagina.primitivas.end());
    EXPECT_EQ(TextoPagina{pagina}.texto(0), u"uno"_s);
}

TEST(TextoPagina, LinesThatAreALittleOutOfLineAreOne)
{
    PaginaCompuesta pagina = FuenteDePrueba{{{u"uno|dos"_s}}}.pagina(0);
    std::get<TextoCompuesto>(pagina.primitivas[1]).base.ry() -= 0.5;
    EXPECT_EQ(TextoPagina{pagina}.texto(0), u"uno"_s);
}

TEST(TextoPagina, WhatIsNoTextIsPassedOver)
{
    PaginaCompuesta pagina = FuenteDePrueba{{{u"uno"_s}}}.pagina(0);
    pagina.primitivas.emplace_back(TrazoCompuesto{});
    EXPECT_EQ(TextoPagina{pagina}.tramos(), 2);
    EXPECT_EQ(TextoPagina{PaginaCompuesta{}}.tramos(), 0);
}

TEST(TextoPagina, ABoxLiesAroundItsCharacters)
{
    const TextoPagina pagina = texto({u"iiMM"_s});
    const QRectF todo = pagina.caja(0, 0, 4);
    EXPECT_DOUBLE_EQ(todo.left(), 20);
    EXPECT_GT(todo.bottom(), 20);
    EXPECT_LT(todo.top(), 20);
    EXPECT_LT(pagina.caja(0, 0, 2).width(), todo.width() / 2) << "thin letters are narrow";
    EXPECT_DOUBLE_EQ(pagina.caja(0, 0, 2).right(), pagina.caja(0, 2, 4).left());
}

TEST(TextoPagina, APointFindsThePlaceBetweenItsLetters)
{
    const TextoPagina pagina = texto({u"abcd"_s});
    const QRectF c = pagina.caja(0, 2, 3);
    EXPECT_EQ(pagina.lugarEn({c.left() + 0.1, c.center().y()}), (LugarTexto{0, 2}));
    EXPECT_EQ(pagina.lugarEn({c.right() - 0.1, c.center().y()}), (LugarTexto{0, 3}));
}

TEST(TextoPagina, APointBesideALineMeansThatLine)
{
    const TextoPagina pagina = texto({u"uno|dos"_s, u"tres"_s});
    EXPECT_EQ(pagina.lugarEn({200, 20}), (LugarTexto{1, 3}));
    EXPECT_EQ(pagina.lugarEn({0, 28}), (LugarTexto{2, 0}));
}

TEST(TextoPagina, ACellKnowsItsLines)
{
    const TextoPagina pagina = texto({u"uno\ndos|tres"_s, u""_s, u"cuatro"_s});
    EXPECT_TRUE(pagina.empieza(0));
    ASSERT_EQ(pagina.siguiente(0), 2) << "read line by line the cell beside it comes first";
    EXPECT_FALSE(pagina.empieza(2));
    EXPECT_EQ(pagina.siguiente(2), -1);
    EXPECT_TRUE(pagina.empieza(1));
    EXPECT_EQ(pagina.siguiente(1), -1);
}

TEST(TextoPagina, BoxesGoOnInTheNextLineOfTheCell)
{
    const TextoPagina pagina = texto({u"uno\ndos|tres"_s});
    const auto cajas = pagina.cajas(0, 1, 5);
    ASSERT_EQ(cajas.size(), 2U);
    EXPECT_EQ(cajas[0], pagina.caja(0, 1, 3));
    EXPECT_EQ(cajas[1], pagina.caja(2, 0, 2));
    EXPECT_EQ(pagina.caja(0, 1, 5), cajas[0].united(cajas[1]));
}

TEST(TextoPagina, APageWithoutTextHasItsBeginningAlone)
{
    EXPECT_EQ(TextoPagina{}.lugarEn({10, 10}), LugarTexto{});
    EXPECT_EQ(TextoPagina{}.final(), LugarTexto{});
    EXPECT_EQ(TextoPagina{}.entre({}, {}), QString{});
    EXPECT_FALSE(TextoPagina{}.hayTextoEn({10, 10}));
}

TEST(TextoPagina, KnowsWhetherThereIsTextUnderAPoint)
{
    const TextoPagina pagina = texto({u"uno"_s});
    EXPECT_TRUE(pagina.hayTextoEn(pagina.caja(0, 0, 3).center()));
    EXPECT_FALSE(pagina.hayTextoEn({150, 150}));
}

TEST(TextoPagina, CopiedCellsArePartedByTabsAndLinesByLineEnds)
{
    const TextoPagina pagina = texto({u"uno|dos"_s, u"tres"_s});
    EXPECT_EQ(pagina.entre({0, 1}, {2, 2}), u"no\tdos\ntr"_s);
    EXPECT_EQ(pagina.entre({0, 1}, {0, 2}), u"n"_s);
}

} // namespace
} // namespace kestrane::report
