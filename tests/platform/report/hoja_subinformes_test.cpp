// Pages with sub-reports.

#include "platform/report/informe_de_prueba.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaNumerada;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;
using testing::ElementsAre;

/// A sub-report whose rows of 10 mm show "NAME N", with its sum below.
Subinforme subinforme(const QString& nombre, double x)
{
    LayoutDePrueba prueba;
    prueba.layout.sentencia = nombre;
    prueba.layout.detalle.push_back(prueba.banda(10, u"'%1 ' & n"_s.arg(nombre)));
    prueba.layout.pieInforme.push_back(prueba.banda(10, u"'%1 suma ' & suma(n)"_s.arg(nombre)));
    Subinforme uno;
    uno.caja = {x, 0, 90, 0};
    uno.layout = std::make_shared<const Layout>(prueba.layout);
    return uno;
}

TEST(HojaSubinformes, ASubreportAloneGoesOnOnTheNextPageBetweenItsBands)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(45);
    prueba.layout.detalle.push_back(prueba.banda(10, u"'fila ' & n"_s));
    prueba.layout.pieInforme.emplace_back();
    prueba.layout.pieInforme.back().elementos.emplace_back(subinforme(u"sub"_s, 0));
    EXPECT_THAT((PaginasDePrueba{prueba.layout, copiaNumerada(2), {{u"sub"_s, copiaNumerada(4)}}}.textos()),
                ElementsAre(ElementsAre(u"fila 1@10"_s, u"fila 2@20"_s, u"sub 1@30"_s, u"sub 2@40"_s),
                            ElementsAre(u"sub 3@10"_s, u"sub 4@20"_s, u"sub suma 10@30"_s)));
}

TEST(HojaSubinformes, SubreportsSideBySideStandAsBlocks)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(45);
    prueba.layout.detalle.push_back(prueba.banda(10, u"'fila ' & n"_s));
    prueba.layout.pieInforme.emplace_back();
    prueba.layout.pieInforme.back().elementos.emplace_back(subinforme(u"uno"_s, 0));
    prueba.layout.pieInforme.back().elementos.emplace_back(subinforme(u"dos"_s, 100));
    prueba.layout.pieInforme.push_back(prueba.banda(5, u"'fin'"_s));
    PaginasDePrueba hojas{prueba.layout, copiaNumerada(2), {{u"uno"_s, copiaNumerada(1)}, {u"dos"_s, copiaNumerada(3)}}};
    const auto paginas = hojas.paginas();
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_THAT(prueba::textosConLugar(paginas[0]), ElementsAre(u"fila 1@10,10"_s, u"fila 2@10,20"_s));
    EXPECT_THAT(prueba::textosConLugar(paginas[1]),
                ElementsAre(u"uno 1@10,10"_s, u"uno suma 1@10,20"_s, u"dos 1@110,10"_s, u"dos 2@110,20"_s, u"dos 3@110,30"_s,
                            u"dos suma 6@110,40"_s, u"fin@10,50"_s));
}

TEST(HojaSubinformes, AReportWithoutRowsShowsItsSubreports)
{
    LayoutDePrueba prueba;
    prueba.layout.detalle.push_back(prueba.banda(10, u"'fila ' & n"_s));
    prueba.layout.pieInforme.emplace_back();
    prueba.layout.pieInforme.back().elementos.emplace_back(subinforme(u"sub"_s, 0));
    EXPECT_THAT((PaginasDePrueba{prueba.layout, copiaNumerada(0), {{u"sub"_s, copiaNumerada(1)}}}.textos()),
                ElementsAre(ElementsAre(u"sub 1@10"_s, u"sub suma 1@20"_s)));
}

TEST(HojaSubinformes, ALongSubreportIsFoundAgainFromItsMiddle)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(100);
    prueba.layout.pieInforme.emplace_back();
    prueba.layout.pieInforme.back().elementos.emplace_back(subinforme(u"sub"_s, 0));
    const auto textos = PaginasDePrueba{prueba.layout, copiaNumerada(0), {{u"sub"_s, copiaNumerada(500)}}}.textos();
    ASSERT_EQ(textos.size(), 51U);
    for (int i = 0; i < 50; ++i) {
        ASSERT_EQ(textos[static_cast<size_t>(i)].size(), 10);
        EXPECT_EQ(textos[static_cast<size_t>(i)].first(), u"sub %1@10"_s.arg(10 * i + 1));
    }
}

TEST(HojaSubinformes, ATextOfASubreportKnowsItsPage)
{
    LayoutDePrueba dentro;
    Banda fila;
    fila.alto = 10;
    fila.elementos.emplace_back(dentro.crece(u"n & ' en ' & pagina"_s, 60));
    dentro.layout.detalle.push_back(fila);
    dentro.layout.sentencia = u"select dentro"_s;
    LayoutDePrueba prueba;
    prueba.altoUtil(20);
    Subinforme subinforme;
    subinforme.caja = {0, 0, 100, 0};
    subinforme.layout = std::make_shared<const Layout>(dentro.layout);
    Banda banda;
    banda.elementos.emplace_back(subinforme);
    prueba.layout.detalle.push_back(banda);
    const auto textos = PaginasDePrueba{prueba.layout, copiaNumerada(1), {{u"select dentro"_s, copiaNumerada(3)}}}.textos();
    EXPECT_THAT(textos, ElementsAre(ElementsAre(u"1 en 1@10"_s, u"2 en 1@20"_s), ElementsAre(u"3 en 2@10"_s)));
}

} // namespace
} // namespace kestrane::report
