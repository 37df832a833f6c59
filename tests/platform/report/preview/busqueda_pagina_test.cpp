#include "platform/report/preview/busqueda_pagina.h"

#include "platform/report/preview/fuente_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

/// What is found on a page of `lineas`.
std::vector<TrechoPagina> halla(const QString& buscado, const QStringList& lineas)
{
    return encuentraEnPagina(buscado, TextoPagina{prueba::FuenteDePrueba{QList<QStringList>{lineas}}.pagina(0)});
}

TEST(BusquedaPagina, WordsThatAreBrokenOverTheLinesOfACellAreFound)
{
    EXPECT_EQ(halla(u"peluqueria central"_s, {u"Peluquería\ncentral|12,50"_s}), (std::vector<TrechoPagina>{{0, {0, 17}}}));
}

TEST(BusquedaPagina, WhatGoesOverThreeLinesIsOneHit)
{
    EXPECT_EQ(halla(u"uno dos tres"_s, {u"uno\ndos\ntres"_s}), (std::vector<TrechoPagina>{{0, {0, 10}}}));
}

TEST(BusquedaPagina, AWordThatIsBrokenWithinIsFound)
{
    EXPECT_EQ(halla(u"electroencefalograma"_s, {u"electroence\nfalograma"_s}), (std::vector<TrechoPagina>{{0, {0, 20}}}));
}

TEST(BusquedaPagina, AHitOnALaterLineIsToldFromThatLine)
{
    // In the order of reading "12,50" stands between the two lines of the cell beside it.
    EXPECT_EQ(halla(u"tral"_s, {u"Peluquería\ncentral|12,50"_s}), (std::vector<TrechoPagina>{{2, {3, 7}}}));
}

TEST(BusquedaPagina, HitsComeInTheOrderOfReading)
{
    EXPECT_EQ(halla(u"a"_s, {u"xa\nya|za"_s}),
              (std::vector<TrechoPagina>{{0, {1, 2}}, {1, {1, 2}}, {2, {1, 2}}, {3, {1, 2}}, {3, {5, 6}}}))
        << "the last two in the page's number";
}

TEST(BusquedaPagina, CellsBelowEachOtherAreNotOneText)
{
    EXPECT_TRUE(halla(u"corte tinte"_s, {u"Corte"_s, u"Tinte"_s}).empty());
    EXPECT_TRUE(halla(u"corte tinte"_s, {u"Corte|Tinte"_s}).empty());
}

TEST(BusquedaPagina, WhatOverlapsCountsOnce)
{
    EXPECT_EQ(halla(u"aa"_s, {u"xa\naax"_s}).size(), 1U);
}

TEST(BusquedaPagina, ALineWhoseCellBeganOnThePageBeforeIsSearchedToo)
{
    PaginaCompuesta pagina = prueba::FuenteDePrueba{{{u"Corte"_s}}}.pagina(0);
    std::get<TextoCompuesto>(pagina.primitivas.front()).sigue = true;
    EXPECT_EQ(encuentraEnPagina(u"corte"_s, TextoPagina{pagina}).size(), 1U);
}

} // namespace
} // namespace kestrane::report
