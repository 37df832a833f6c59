// Details side by side.

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

/// Two columns on pages of 100 mm, with details of 10 that show "fila N".
LayoutDePrueba dosColumnas()
{
    LayoutDePrueba prueba;
    prueba.altoUtil(100);
    prueba.layout.pagina.columnas = 2;
    prueba.layout.detalle.push_back(prueba.banda(10, u"'fila ' & n"_s));
    return prueba;
}

TEST(HojaCajas, LabelsFillAcrossThenDownToTheMillimetre)
{
    // A sheet of 3 by 8 labels of 70 by 37.125 mm without margins.
    LayoutDePrueba prueba;
    prueba.layout.pagina.margenes = {};
    prueba.layout.pagina.columnas = 3;
    prueba.layout.detalle.push_back(prueba.banda(37.125, u"n"_s));
    PaginasDePrueba hojas{prueba.layout, copiaNumerada(25)};
    const auto pliegos = hojas.paginas();
    ASSERT_EQ(pliegos.size(), 2U);
    const QStringList primero = prueba::textosConLugar(pliegos[0]);
    ASSERT_EQ(primero.size(), 24);
    EXPECT_EQ(primero[0], u"1@0,0"_s);
    EXPECT_EQ(primero[1], u"2@70,0"_s);
    EXPECT_EQ(primero[2], u"3@140,0"_s);
    EXPECT_EQ(primero[3], u"4@0,37.13"_s);
    EXPECT_EQ(primero[23], u"24@140,259.88"_s);
    EXPECT_THAT(prueba::textosConLugar(pliegos[1]), ElementsAre(u"25@0,0"_s));
}

TEST(HojaCajas, ALabelThatDoesNotShowTakesNoPlace)
{
    LayoutDePrueba prueba = dosColumnas();
    prueba.layout.detalle.front().mostrar = prueba.expresion(u"n <> 2"_s);
    PaginasDePrueba hojas{prueba.layout, copiaNumerada(4)};
    EXPECT_THAT(prueba::textosConLugar(hojas.paginas()[0]), ElementsAre(u"fila 1@10,10"_s, u"fila 3@105,10"_s, u"fila 4@10,20"_s));
}

TEST(HojaCajas, ColumnsHaveRoomBetweenThemAndGroupsBeginBelow)
{
    LayoutDePrueba prueba = dosColumnas();
    prueba.layout.pagina.separacion = 4; // two columns of 93
    prueba.grupo(u"g"_s);
    PaginasDePrueba hojas{prueba.layout, copiaDe({u"g"_s, u"n"_s}, {{1, 1}, {1, 2}, {1, 3}, {2, 4}})};
    EXPECT_THAT(prueba::textosConLugar(hojas.paginas().front()), ElementsAre(u"g 1@10,10"_s, u"fila 1@10,20"_s, u"fila 2@107,20"_s,
                                                                             u"fila 3@10,30"_s, u"g 2@10,40"_s, u"fila 4@10,50"_s));
}

TEST(HojaCajas, ABoxHigherThanItsPageEndsWithDotsAboveTheFooter)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(30);
    prueba.layout.pagina.columnas = 2;
    Banda banda;
    banda.alto = 5;
    banda.elementos.emplace_back(prueba.crece(u"texto"_s, 90));
    prueba.layout.detalle.push_back(banda);
    prueba.layout.piePagina.push_back(prueba.banda(10, u"'pie'"_s));
    const QString veinteLineas = QStringList(20, u"linea"_s).join(u'\n');
    const QStringList textos = PaginasDePrueba{prueba.layout, copiaDe({u"texto"_s}, {{veinteLineas}})}.textos().front();
    ASSERT_EQ(textos.size(), 5) << "four lines of 4.1 mm above the footer";
    EXPECT_TRUE(textos[3].section(u'@', 0, 0).endsWith(u'…')) << textos[3].toStdString();
    EXPECT_EQ(textos.last(), u"pie@30"_s);
}

} // namespace
} // namespace kestrane::report
