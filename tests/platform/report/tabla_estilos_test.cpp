#include "platform/report/tabla_estilos.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

TEST(TablaEstilos, EachStyleIsThereOnce)
{
    TablaEstilos tabla;
    Estilo grande;
    grande.cuerpo = 20;
    EXPECT_EQ(tabla.indice(Estilo{}), 0);
    EXPECT_EQ(tabla.indice(grande), 1);
    EXPECT_EQ(tabla.indice(Estilo{}), 0);
    EXPECT_EQ(tabla.estilo(1), grande);
    EXPECT_EQ(tabla.estilos()->size(), 2U);
    EXPECT_GT(tabla.medida(1).altoRenglon(), tabla.medida(0).altoRenglon());
}

} // namespace
} // namespace kestrane::report
