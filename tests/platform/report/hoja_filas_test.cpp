// Pages of rows that have several bands.

#include "platform/report/informe_de_prueba.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaNumerada;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;
using testing::ElementsAre;

/// Pages of `alto` millimetres between margins of 10, with details of two bands that show "fila N" and "nota N".
LayoutDePrueba conNotas(double alto, double altoBanda = 10)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(alto);
    prueba.layout.detalle.push_back(prueba.banda(altoBanda, u"'fila ' & n"_s));
    prueba.layout.detalle.push_back(prueba.banda(altoBanda, u"'nota ' & n"_s));
    return prueba;
}

std::vector<QStringList> paginas(const LayoutDePrueba& prueba, int filas)
{
    return PaginasDePrueba{prueba.layout, copiaNumerada(filas)}.textos();
}

TEST(HojaFilas, TheBandsOfARowStayTogether)
{
    EXPECT_THAT(paginas(conNotas(50), 3), ElementsAre(ElementsAre(u"fila 1@10"_s, u"nota 1@20"_s, u"fila 2@30"_s, u"nota 2@40"_s),
                                                      ElementsAre(u"fila 3@10"_s, u"nota 3@20"_s)));
}

TEST(HojaFilas, HiddenBandsNeedNoRoom)
{
    LayoutDePrueba prueba = conNotas(50);
    prueba.layout.detalle[1].mostrar = prueba.expresion(u"n < 3"_s);
    EXPECT_THAT(paginas(prueba, 3),
                ElementsAre(ElementsAre(u"fila 1@10"_s, u"nota 1@20"_s, u"fila 2@30"_s, u"nota 2@40"_s, u"fila 3@50"_s)));
}

TEST(HojaFilas, ARowThatNoPageHoldsGoesOnAsItComes)
{
    EXPECT_THAT(paginas(conNotas(50, 30), 2), ElementsAre(ElementsAre(u"fila 1@10"_s), ElementsAre(u"nota 1@10"_s),
                                                          ElementsAre(u"fila 2@10"_s), ElementsAre(u"nota 2@10"_s)));
}

TEST(HojaFilas, AHeaderIsNotLeftAloneForIt)
{
    LayoutDePrueba prueba = conNotas(50, 22);
    prueba.grupo(u"n"_s);
    EXPECT_THAT(paginas(prueba, 1), ElementsAre(ElementsAre(u"n 1@10"_s, u"fila 1@20"_s), ElementsAre(u"nota 1@10"_s)));
}

TEST(HojaFilas, BandsThatBeginAPageAreNotKeptWithThoseBefore)
{
    LayoutDePrueba prueba = conNotas(25);
    prueba.layout.detalle[1].saltoAntes = true;
    EXPECT_THAT(paginas(prueba, 2),
                ElementsAre(ElementsAre(u"fila 1@10"_s), ElementsAre(u"nota 1@10"_s, u"fila 2@20"_s), ElementsAre(u"nota 2@10"_s)));
}

} // namespace
} // namespace kestrane::report
