#include "instalacion/demo/parametros.h"

#include <gtest/gtest.h>

namespace kestrane::demo::pruebas {
namespace {

TEST(PalabrasDeLaDemo, SizesAndFlavoursAreNamedExactly)
{
    EXPECT_EQ(tamanoDeTexto(u"anio"), Tamano::Anio);
    EXPECT_FALSE(tamanoDeTexto(u"año"));
    EXPECT_EQ(tipoDeTexto(u"TALLACOLOR"), TipoTienda::TallaColor);
    EXPECT_FALSE(tipoDeTexto(u"Peluqueria"));
}

} // namespace
} // namespace kestrane::demo::pruebas
