#include "platform/report/subinformes_visibles.h"

#include "platform/report/informe_de_prueba.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaNumerada;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;
using testing::ElementsAre;
using testing::IsEmpty;

/// A sub-report called NAME, whose statement has that name too.
Subinforme subinforme(const QString& nombre)
{
    LayoutDePrueba dentro;
    dentro.layout.sentencia = nombre;
    dentro.layout.detalle.push_back(dentro.banda(10, u"n"_s));
    Subinforme uno;
    uno.caja = {0, 0, 90, 0};
    uno.titulo = nombre;
    uno.layout = std::make_shared<const Layout>(dentro.layout);
    return uno;
}

/// A band that holds it.
Banda banda(const Subinforme& uno)
{
    Banda nueva;
    nueva.alto = 5;
    nueva.elementos.emplace_back(uno);
    return nueva;
}

/// Sub-reports of a report of so many rows: "NAME ROWS". "a" has one row, "b" two, "nada" none.
QStringList vistos(const LayoutDePrueba& prueba, int filas)
{
    PaginasDePrueba hojas{prueba.layout,
                          copiaNumerada(filas),
                          {{u"a"_s, copiaNumerada(1)}, {u"b"_s, copiaNumerada(2)}, {u"nada"_s, copiaNumerada(0)}}};
    QStringList todos;
    for (const DatosSubinforme& uno : hojas.maquetado().subinformes())
        todos << uno.titulo + u' ' + QString::number(uno.filas.filas());
    return todos;
}

TEST(SubinformesVisibles, TheyStandInTheOrderOfThePaper)
{
    LayoutDePrueba prueba;
    prueba.layout.pieInforme.push_back(banda(subinforme(u"b"_s)));
    prueba.layout.cabeceraInforme.push_back(banda(subinforme(u"a"_s)));
    EXPECT_THAT(vistos(prueba, 3), ElementsAre(u"a 1"_s, u"b 2"_s));
    EXPECT_THAT(vistos(prueba, 0), ElementsAre(u"a 1"_s, u"b 2"_s));
}

TEST(SubinformesVisibles, OneOfTheRowsIsThereOnce)
{
    LayoutDePrueba prueba;
    prueba.layout.detalle.push_back(banda(subinforme(u"a"_s)));
    EXPECT_THAT(vistos(prueba, 3), ElementsAre(u"a 1"_s));
    EXPECT_THAT(vistos(prueba, 0), IsEmpty()) << "no row, nowhere to stand";
}

TEST(SubinformesVisibles, WhatDoesNotShowIsLeftOut)
{
    LayoutDePrueba prueba;
    prueba.layout.pieInforme.push_back(banda(subinforme(u"a"_s)));
    prueba.layout.pieInforme.push_back(banda(subinforme(u"b"_s)));
    prueba.layout.pieInforme[0].mostrar = prueba.expresion(u"n = 2"_s);
    std::get<Subinforme>(prueba.layout.pieInforme[1].elementos[0]).mostrar = prueba.expresion(u"n = 3"_s);
    EXPECT_THAT(vistos(prueba, 2), ElementsAre(u"a 1"_s)) << "the last row counts for the report's end";
    EXPECT_THAT(vistos(prueba, 3), ElementsAre(u"b 2"_s));
    EXPECT_THAT(vistos(prueba, 4), IsEmpty());
}

TEST(SubinformesVisibles, OneWithoutRowsIsLeftOut)
{
    LayoutDePrueba prueba;
    prueba.layout.pieInforme.push_back(banda(subinforme(u"nada"_s)));
    EXPECT_THAT(vistos(prueba, 1), IsEmpty());
}

TEST(SubinformesVisibles, ThoseWithinOneFollowIt)
{
    Subinforme fuera = subinforme(u"a"_s);
    Layout layout = *fuera.layout;
    layout.pieInforme.push_back(banda(subinforme(u"b"_s)));
    fuera.layout = std::make_shared<const Layout>(layout);
    LayoutDePrueba prueba;
    prueba.layout.pieInforme.push_back(banda(fuera));
    EXPECT_THAT(vistos(prueba, 1), ElementsAre(u"a 1"_s, u"b 2"_s));
}

} // namespace
} // namespace kestrane::report
