#include "platform/report/hoja.h"

#include "platform/report/informe_de_prueba.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaDe;
using prueba::copiaNumerada;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;
using testing::ElementsAre;

/// Pages of `alto` millimetres between margins of 10, with details of 10 that show "fila N".
LayoutDePrueba filas(double alto)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(alto);
    prueba.layout.detalle.push_back(prueba.banda(10, u"'fila ' & n"_s));
    return prueba;
}

std::vector<QStringList> paginas(const LayoutDePrueba& prueba, const CopiaFilas& copia)
{
    return PaginasDePrueba{prueba.layout, copia}.textos();
}

/// Rows (g, n): as many of each group as told.
CopiaFilas grupos(std::initializer_list<int> cuantas)
{
    std::vector<std::vector<Valor>> filas;
    int grupo = 0;
    int n = 0;
    for (const int filasDeGrupo : cuantas) {
        ++grupo;
        for (int i = 0; i < filasDeGrupo; ++i)
            filas.push_back({grupo, ++n});
    }
    return copiaDe({u"g"_s, u"n"_s}, filas);
}

TEST(Hoja, HeadingsStandOnEachPageTheReportsHeaderOnce)
{
    LayoutDePrueba prueba = filas(50);
    prueba.layout.cabeceraInforme.push_back(prueba.banda(15, u"'titulo'"_s));
    prueba.layout.cabeceraPagina.push_back(prueba.banda(5, u"'columna'"_s));
    prueba.layout.piePagina.push_back(prueba.banda(8, u"'pie'"_s));
    EXPECT_THAT(paginas(prueba, copiaNumerada(5)),
                ElementsAre(ElementsAre(u"titulo@10"_s, u"columna@25"_s, u"fila 1@30"_s, u"fila 2@40"_s, u"pie@52"_s),
                            ElementsAre(u"columna@10"_s, u"fila 3@15"_s, u"fila 4@25"_s, u"fila 5@35"_s, u"pie@52"_s)));
}

TEST(Hoja, AReportThatFillsItsPageHasNoOtherPage)
{
    EXPECT_EQ(paginas(filas(30), copiaNumerada(3)).size(), 1U);
    EXPECT_EQ(paginas(filas(30), copiaNumerada(6)).size(), 2U);
}

TEST(Hoja, WithoutRowsHeadersAndFootersShow)
{
    LayoutDePrueba prueba = filas(50);
    prueba.layout.cabeceraInforme.push_back(prueba.banda(10, u"'titulo'"_s));
    prueba.layout.cabeceraPagina.push_back(prueba.banda(5, u"'columna'"_s));
    prueba.layout.pieInforme.push_back(prueba.banda(5, u"'total ' & suma(n)"_s));
    prueba.layout.piePagina.push_back(prueba.banda(5, u"'pie'"_s));
    EXPECT_THAT(paginas(prueba, copiaNumerada(0)),
                ElementsAre(ElementsAre(u"titulo@10"_s, u"columna@20"_s, u"total 0@25"_s, u"pie@55"_s)));
    prueba.layout.pieInforme.clear();
    EXPECT_THAT(paginas(prueba, copiaNumerada(0)), ElementsAre(ElementsAre(u"titulo@10"_s, u"columna@20"_s, u"pie@55"_s)));
}

TEST(Hoja, GroupsNestWithTheirHeadersAndFooters)
{
    LayoutDePrueba prueba = filas(200);
    prueba.grupo(u"a"_s, 10, u"'fin ' & a & ': ' & suma(n)"_s);
    prueba.grupo(u"b"_s, 10, u"'suma ' & suma(n)"_s);
    const CopiaFilas copia = copiaDe({u"a"_s, u"b"_s, u"n"_s}, {{1, 1, 1}, {1, 2, 2}, {1, 2, 4}, {2, 2, 8}});
    EXPECT_THAT(paginas(prueba, copia),
                ElementsAre(ElementsAre(u"a 1@10"_s, u"b 1@20"_s, u"fila 1@30"_s, u"suma 1@40"_s, u"b 2@50"_s, u"fila 2@60"_s,
                                        u"fila 4@70"_s, u"suma 6@80"_s, u"fin 1: 7@90"_s, u"a 2@100"_s, u"b 2@110"_s,
                                        u"fila 8@120"_s, u"suma 8@130"_s, u"fin 2: 8@140"_s)));
}

TEST(Hoja, AGroupsHeaderStaysWithItsFirstRow)
{
    LayoutDePrueba prueba = filas(40);
    prueba.grupo(u"g"_s);
    EXPECT_THAT(paginas(prueba, grupos({2, 1})),
                ElementsAre(ElementsAre(u"g 1@10"_s, u"fila 1@20"_s, u"fila 2@30"_s), ElementsAre(u"g 2@10"_s, u"fila 3@20"_s)));
    prueba.layout.grupos[0].juntoALaPrimera = false;
    EXPECT_THAT(paginas(prueba, grupos({2, 1})),
                ElementsAre(ElementsAre(u"g 1@10"_s, u"fila 1@20"_s, u"fila 2@30"_s, u"g 2@40"_s), ElementsAre(u"fila 3@10"_s)));
}

TEST(Hoja, HeadersOfNestedGroupsStayTogetherWithTheFirstRow)
{
    LayoutDePrueba prueba = filas(50);
    prueba.grupo(u"a"_s);
    prueba.grupo(u"b"_s);
    const CopiaFilas copia = copiaDe({u"a"_s, u"b"_s, u"n"_s}, {{1, 1, 1}, {2, 1, 2}});
    EXPECT_THAT(paginas(prueba, copia), ElementsAre(ElementsAre(u"a 1@10"_s, u"b 1@20"_s, u"fila 1@30"_s),
                                                    ElementsAre(u"a 2@10"_s, u"b 1@20"_s, u"fila 2@30"_s)));
}

TEST(Hoja, HeadersThatDoNotFitOnAPageComeToAnEnd)
{
    LayoutDePrueba prueba = filas(15);
    prueba.grupo(u"g"_s);
    EXPECT_THAT(paginas(prueba, grupos({2})),
                ElementsAre(ElementsAre(u"g 1@10"_s), ElementsAre(u"fila 1@10"_s), ElementsAre(u"fila 2@10"_s)));
}

TEST(Hoja, AGroupThatGoesOnRepeatsItsHeader)
{
    LayoutDePrueba prueba = filas(30);
    prueba.grupo(u"g"_s).repiteCabecera = true;
    EXPECT_THAT(paginas(prueba, grupos({4, 1})),
                ElementsAre(ElementsAre(u"g 1@10"_s, u"fila 1@20"_s, u"fila 2@30"_s),
                            ElementsAre(u"g 1@10"_s, u"fila 3@20"_s, u"fila 4@30"_s), ElementsAre(u"g 2@10"_s, u"fila 5@20"_s)));
}

TEST(Hoja, EachGroupButTheFirstBeginsAPage)
{
    LayoutDePrueba prueba = filas(100);
    prueba.layout.cabeceraInforme.push_back(prueba.banda(10, u"'titulo'"_s));
    prueba.grupo(u"g"_s).saltoDePagina = true;
    EXPECT_THAT(paginas(prueba, grupos({1, 2})), ElementsAre(ElementsAre(u"titulo@10"_s, u"g 1@20"_s, u"fila 1@30"_s),
                                                             ElementsAre(u"g 2@10"_s, u"fila 2@20"_s, u"fila 3@30"_s)));
}

TEST(Hoja, AnInnerGroupsBreakTakesTheOuterHeaderAlong)
{
    LayoutDePrueba prueba = filas(100);
    prueba.grupo(u"a"_s);
    prueba.grupo(u"b"_s).saltoDePagina = true;
    const CopiaFilas copia = copiaDe({u"a"_s, u"b"_s, u"n"_s}, {{1, 1, 1}, {1, 2, 2}, {2, 1, 3}});
    EXPECT_THAT(paginas(prueba, copia),
                ElementsAre(ElementsAre(u"a 1@10"_s, u"b 1@20"_s, u"fila 1@30"_s), ElementsAre(u"b 2@10"_s, u"fila 2@20"_s),
                            ElementsAre(u"a 2@10"_s, u"b 1@20"_s, u"fila 3@30"_s)));
}

TEST(Hoja, ABandMayBeginAPage)
{
    LayoutDePrueba prueba = filas(100);
    prueba.layout.pieInforme.push_back(prueba.banda(10, u"'resumen'"_s));
    prueba.layout.pieInforme.back().saltoAntes = true;
    EXPECT_THAT(paginas(prueba, copiaNumerada(1)), ElementsAre(ElementsAre(u"fila 1@10"_s), ElementsAre(u"resumen@10"_s)));
    EXPECT_THAT(paginas(prueba, copiaNumerada(0)), ElementsAre(ElementsAre(u"resumen@10"_s)));
}

TEST(Hoja, HiddenBandsTakeNoRoom)
{
    LayoutDePrueba prueba = filas(100);
    prueba.layout.detalle.front().mostrar = prueba.expresion(u"n <> 2"_s);
    EXPECT_THAT(paginas(prueba, copiaNumerada(3)), ElementsAre(ElementsAre(u"fila 1@10"_s, u"fila 3@20"_s)));
}

TEST(Hoja, ABandAtTheFootStandsAsLowAsThePageAllows)
{
    LayoutDePrueba prueba = filas(60);
    prueba.layout.piePagina.push_back(prueba.banda(10, u"'pie'"_s));
    prueba.layout.pieInforme.push_back(prueba.banda(10, u"'firma'"_s));
    prueba.layout.pieInforme.push_back(prueba.banda(5, u"'sello'"_s));
    for (Banda& banda : prueba.layout.pieInforme)
        banda.alPieDePagina = true;
    EXPECT_THAT(paginas(prueba, copiaNumerada(1)),
                ElementsAre(ElementsAre(u"fila 1@10"_s, u"firma@45"_s, u"sello@55"_s, u"pie@60"_s)));
    EXPECT_THAT(paginas(prueba, copiaNumerada(4)),
                ElementsAre(ElementsAre(u"fila 1@10"_s, u"fila 2@20"_s, u"fila 3@30"_s, u"fila 4@40"_s, u"pie@60"_s),
                            ElementsAre(u"firma@45"_s, u"sello@55"_s, u"pie@60"_s)));
}

TEST(Hoja, ARollIsAsLongAsItsContent)
{
    LayoutDePrueba prueba = filas(0);
    prueba.layout.pagina.tamano = {80, 0};
    prueba.layout.piePagina.push_back(prueba.banda(6, u"'pie'"_s));
    PaginasDePrueba rollo{prueba.layout, copiaNumerada(3)};
    const auto paginas = rollo.paginas();
    ASSERT_EQ(paginas.size(), 1U);
    EXPECT_EQ(paginas[0].tamano, QSizeF(80, 10 + 30 + 6 + 10));
    EXPECT_EQ(prueba::textosConAltura(paginas[0]).last(), u"pie@40"_s);
}

TEST(Hoja, ARollEndsAtItsGreatestLength)
{
    LayoutDePrueba prueba = filas(0);
    prueba.layout.pagina.tamano = {80, 0};
    prueba.layout.pagina.largoMaximo = 45; // margins of 20: two rows
    PaginasDePrueba rollo{prueba.layout, copiaNumerada(3)};
    const auto paginas = rollo.paginas();
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_EQ(paginas[0].tamano, QSizeF(80, 40));
    EXPECT_EQ(paginas[1].tamano, QSizeF(80, 30));
}

TEST(Hoja, TheTotalOfPagesIsKnownAtTheEnd)
{
    LayoutDePrueba prueba = filas(30);
    prueba.layout.piePagina.push_back(prueba.banda(10, u"pagina & ' de ' & paginas"_s));
    PaginasDePrueba hojas{prueba.layout, copiaNumerada(3)};
    hojas.maquetado().avanza();
    EXPECT_EQ(prueba::textosDe(hojas.maquetado().pagina(0)).last(), u"1 de ..."_s);
    hojas.maquetado().avanza();
    ASSERT_TRUE(hojas.maquetado().completo());
    EXPECT_EQ(prueba::textosDe(hojas.maquetado().pagina(0)).last(), u"1 de 2"_s);
}

TEST(Hoja, WhatShowsOnTheLastPageAloneTakesItsRoomOnAll)
{
    LayoutDePrueba prueba = filas(30);
    prueba.layout.piePagina.push_back(prueba.banda(10, u"'fin'"_s));
    prueba.layout.piePagina.front().mostrar = prueba.expresion(u"pagina = paginas"_s);
    EXPECT_THAT(paginas(prueba, copiaNumerada(3)),
                ElementsAre(ElementsAre(u"fila 1@10"_s, u"fila 2@20"_s), ElementsAre(u"fila 3@10"_s, u"fin@30"_s)));
}

TEST(Hoja, TheFooterSeesTheLastRowTheHeadingsTheFirst)
{
    LayoutDePrueba prueba = filas(50);
    prueba.layout.cabeceraPagina.push_back(prueba.banda(10, u"'desde ' & n"_s));
    prueba.layout.piePagina.push_back(prueba.banda(10, u"'van ' & acumulado(n)"_s));
    EXPECT_THAT(paginas(prueba, copiaNumerada(4)),
                ElementsAre(ElementsAre(u"desde 1@10"_s, u"fila 1@20"_s, u"fila 2@30"_s, u"fila 3@40"_s, u"van 6@50"_s),
                            ElementsAre(u"desde 4@10"_s, u"fila 4@20"_s, u"van 10@50"_s)));
}

TEST(Hoja, ABandHigherThanThePageStandsAlone)
{
    LayoutDePrueba prueba = filas(25);
    prueba.layout.detalle.front().alto = 100;
    EXPECT_THAT(paginas(prueba, copiaNumerada(2)), ElementsAre(ElementsAre(u"fila 1@10"_s), ElementsAre(u"fila 2@10"_s)));
}

TEST(Hoja, PaperSmallerThanItsMarginsComesToAnEnd)
{
    EXPECT_EQ(paginas(filas(-15), copiaNumerada(3)).size(), 3U);
}

TEST(Hoja, TheTreeOfGroupsTellsPageAndPlace)
{
    LayoutDePrueba prueba = filas(40);
    prueba.grupo(u"g"_s).titulo = prueba.expresion(u"'Grupo ' & g"_s);
    PaginasDePrueba hojas{prueba.layout, grupos({2, 1})};
    static_cast<void>(hojas.paginas());
    const auto& indice = hojas.maquetado().indice();
    ASSERT_EQ(indice.size(), 2U);
    EXPECT_EQ(indice[0].titulo, u"Grupo 1"_s);
    EXPECT_EQ(indice[0].pagina, 0);
    EXPECT_EQ(indice[1].titulo, u"Grupo 2"_s);
    EXPECT_EQ(indice[1].pagina, 1);
    EXPECT_EQ(indice[1].y, 10);
    EXPECT_EQ(indice[1].nivel, 0);
}

} // namespace
} // namespace kestrane::report
