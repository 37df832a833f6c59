#include "platform/report/preview/geometria_paginas.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

constexpr double Margen = GeometriaPaginas::Margen;

/// Three pages 100 wide and 200 high, at two points a millimetre.
GeometriaPaginas tres()
{
    GeometriaPaginas geometria;
    for (int i = 0; i < 3; ++i)
        geometria.anade({100, 200});
    geometria.ponEscala(2);
    return geometria;
}

TEST(GeometriaPaginas, PagesStandOneBelowTheOtherWithAMarginBetween)
{
    const GeometriaPaginas geometria = tres();
    EXPECT_EQ(geometria.caja(0, 0), QRectF(Margen, Margen, 200, 400));
    EXPECT_EQ(geometria.caja(2, 0), QRectF(Margen, 3 * Margen + 800, 200, 400));
    EXPECT_EQ(geometria.contenido(), QSizeF(200 + 2 * Margen, 1200 + 4 * Margen));
}

TEST(GeometriaPaginas, PagesStandInTheMiddleOfAWiderWindow)
{
    EXPECT_EQ(tres().caja(1, 1000).left(), 400);
}

TEST(GeometriaPaginas, APageNarrowerThanTheRestIsCentredToo)
{
    GeometriaPaginas geometria = tres();
    geometria.anade({50, 10});
    EXPECT_EQ(geometria.caja(3, 0), QRectF(Margen + 50, 4 * Margen + 1200, 100, 20));
}

TEST(GeometriaPaginas, FindsThePageAtAHeight)
{
    const GeometriaPaginas geometria = tres();
    EXPECT_EQ(geometria.paginaEn(-50), 0);
    EXPECT_EQ(geometria.paginaEn(Margen + 399), 0);
    EXPECT_EQ(geometria.paginaEn(2 * Margen + 401), 1);
    EXPECT_EQ(geometria.paginaEn(1e9), 2);
}

TEST(GeometriaPaginas, WithoutPagesThereIsNone)
{
    EXPECT_EQ(GeometriaPaginas{}.paginaEn(10), -1);
    EXPECT_EQ(GeometriaPaginas{}.contenido(), QSizeF(2 * Margen, Margen));
}

TEST(GeometriaPaginas, FindsItsWayAmongSixteenThousand)
{
    GeometriaPaginas geometria;
    for (int i = 0; i < 16000; ++i)
        geometria.anade({210, 297});
    geometria.ponEscala(4);
    for (const int pagina : {0, 1, 7999, 15998, 15999})
        EXPECT_EQ(geometria.paginaEn(geometria.caja(pagina, 0).center().y()), pagina);
}

TEST(GeometriaPaginas, FitsTheWidthAndThePage)
{
    const GeometriaPaginas geometria = tres();
    EXPECT_DOUBLE_EQ(geometria.escalaDe({Zoom::Modo::Ancho, 0}, {500 + 2 * Margen, 300}, 0), 5);
    EXPECT_DOUBLE_EQ(geometria.escalaDe({Zoom::Modo::Pagina, 0}, {500 + 2 * Margen, 300 + 2 * Margen}, 0), 1.5);
    EXPECT_DOUBLE_EQ(geometria.escalaDe({Zoom::Modo::Porcentaje, 200}, {500, 300}, 0), 2 * 96 / 25.4);
}

TEST(GeometriaPaginas, ALongRollIsNotFittedUntilItVanishes)
{
    GeometriaPaginas rollo;
    rollo.anade({80, 5000});
    EXPECT_DOUBLE_EQ(rollo.escalaDe({Zoom::Modo::Pagina, 0}, {800, 600}, 0), 0.1 * 96 / 25.4);
}

} // namespace
} // namespace kestrane::report
