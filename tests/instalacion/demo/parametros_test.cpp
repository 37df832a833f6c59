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

TEST(PalabrasDeLaDemo, StoresAreThoseOfTheFlavourAndTheSize)
{
    const Parametros mes{.tipo = TipoTienda::Tpv, .tamano = Tamano::Mes};
    EXPECT_EQ(nombresDeTiendas(mes), (QStringList{QStringLiteral("Centro"), QStringLiteral("Gran Centro")}));
    EXPECT_EQ(tiendaDeTexto(u"Gran Centro", mes), QStringLiteral("Gran Centro"));
    EXPECT_FALSE(tiendaDeTexto(u"Norte", mes));
    EXPECT_FALSE(tiendaDeTexto(u"Centro", Parametros{.tamano = Tamano::Dia}));
    EXPECT_EQ(cuantasTiendas(Parametros{.tamano = Tamano::Cadena}), 50);
}

} // namespace
} // namespace kestrane::demo::pruebas
