#include "platform/report/preview/seleccion.h"

#include "platform/report/preview/fuente_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class SeleccionTest : public testing::Test
{
protected:
    prueba::FuenteDePrueba fuente{{{u"uno"_s}, {u"dos"_s}, {u"tres"_s}}};
    PaginasVista paginas{fuente, [](const QString&) {}};
    Seleccion seleccion;
};

TEST_F(SeleccionTest, IsEmptyUntilItIsExtended)
{
    EXPECT_TRUE(seleccion.vacia());
    seleccion.empieza({1, {0, 2}});
    EXPECT_TRUE(seleccion.vacia());
    seleccion.extiende({1, {0, 3}});
    EXPECT_FALSE(seleccion.vacia());
    seleccion.quita();
    EXPECT_TRUE(seleccion.vacia());
}

TEST_F(SeleccionTest, MayBeDraggedBackwards)
{
    seleccion.empieza({0, {0, 3}});
    seleccion.extiende({0, {0, 1}});
    EXPECT_EQ(seleccion.texto(paginas), u"no"_s);
}

TEST_F(SeleccionTest, GoesOverPages)
{
    seleccion.empieza({0, {1, 7}});
    seleccion.extiende({2, {0, 2}});
    EXPECT_EQ(seleccion.texto(paginas), u"1 de 3\ndos\nPágina 2 de 3\ntr"_s);
    EXPECT_EQ(seleccion.enPagina(1, {1, 13}), (std::pair{LugarTexto{}, LugarTexto{1, 13}}));
}

TEST_F(SeleccionTest, TellsAfterEachPageHowFarItIsAndIsBrokenOff)
{
    seleccion.empieza({0, {0, 0}});
    seleccion.extiende({2, {0, 4}});
    QStringList avances;
    EXPECT_NE(seleccion.texto(paginas, [&](double parte) { return avances += QString::number(parte, 'f', 2), true; }),
              std::nullopt);
    EXPECT_EQ(avances, (QStringList{u"0.33"_s, u"0.67"_s, u"1.00"_s}));
    fuente.pedidas.clear();
    EXPECT_EQ(seleccion.texto(paginas, [](double parte) { return parte < 0.5; }), std::nullopt);
    EXPECT_FALSE(fuente.pedidas.contains(2));
}

TEST_F(SeleccionTest, PagesOutsideHaveNoneOfIt)
{
    seleccion.empieza({1, {0, 0}});
    seleccion.extiende({1, {0, 2}});
    EXPECT_EQ(seleccion.enPagina(0, {1, 13}), std::nullopt);
    EXPECT_EQ(seleccion.enPagina(2, {1, 13}), std::nullopt);
}

} // namespace
} // namespace kestrane::report
