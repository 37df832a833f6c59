#include "cash/vocabulary/tipos_venta.h"

#include <QString>

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using enum FamiliaVenta;

struct TipoEsperado
{
    QStringView codigo;
    FamiliaVenta familia;
    QStringView catalogoDeNombre;
    QStringView catalogoDeCodigo;
    QStringView prefijo;
};

constexpr TipoEsperado Esperados[] = {
    {u"S", Servicios, u"Servicios", u"Servicios", u""},
    {u"B", Servicios, u"Servicios", u"Servicios", u""},
    {u"CB", Servicios, u"Servicios", u"Servicios", u"Cons.Bono: "},
    {u"P", Productos, u"Productos", u"Productos", u""},
    {u"F", Packs, u"Familias", u"Familias", u""},
    {u"BF", Packs, u"Familias", u"Familias", u""},
    {u"CBF", Packs, u"Familias", u"Familias", u"Cons.Bono: "},
    {u"PSPA", PacksSpa, u"Cabecera_pack_spa", u"", u"Pack Spa - "},
    {u"CPSPA", Ninguna, u"Servicios", u"", u"Cons.Pack Spa: "},
    {u"SF", Ninguna, u"Servicios", u"", u"Servicio de Pack: "},
    {u"CSF", Ninguna, u"Servicios", u"", u"Cons.Pack Servicios: "},
    {u"SP", Ninguna, u"", u"pack", u""},
};

TEST(TiposVentaTest, TheTwelveKindsHaveTheirFamilyCataloguesAndLabel)
{
    EXPECT_EQ(tiposDeVenta().size(), std::size(Esperados));
    for (const TipoEsperado& esperado : Esperados) {
        const TipoVenta& tipo = tipoDeVenta(esperado.codigo);
        const std::string nombre = esperado.codigo.toString().toStdString();
        EXPECT_EQ(tipo.codigo, esperado.codigo) << nombre;
        EXPECT_EQ(tipo.familia, esperado.familia) << nombre;
        EXPECT_EQ(tipo.catalogoDeNombre, esperado.catalogoDeNombre) << nombre;
        EXPECT_EQ(tipo.catalogoDeCodigo, esperado.catalogoDeCodigo) << nombre;
        EXPECT_EQ(tipo.prefijo, esperado.prefijo) << nombre;
    }
}

TEST(TiposVentaTest, AnyOtherTextIsAKindOfNothing)
{
    for (const QStringView codigo : {u"", u"s", u"pspa", u"S ", u"X"}) {
        const TipoVenta& tipo = tipoDeVenta(codigo);
        EXPECT_TRUE(tipo.codigo.isEmpty() && tipo.catalogoDeNombre.isEmpty() && tipo.catalogoDeCodigo.isEmpty());
        EXPECT_TRUE(tipo.prefijo.isEmpty());
        EXPECT_EQ(tipo.familia, Ninguna);
    }
}

TEST(TiposVentaTest, LinesOfOneKindAreTheSameWhenTheirCodesAre)
{
    for (const TipoEsperado& tipo : Esperados) {
        EXPECT_TRUE(MismaLineaVenta(7, tipo.codigo, 7, tipo.codigo)) << tipo.codigo.toString().toStdString();
        EXPECT_FALSE(MismaLineaVenta(7, tipo.codigo, 8, tipo.codigo)) << tipo.codigo.toString().toStdString();
    }
    EXPECT_TRUE(MismaLineaVenta(7, u"X", 7, u"X"));
}

TEST(TiposVentaTest, KindsOfServicesAreOneLineAndSoAreKindsOfPacks)
{
    const auto gruposDe = [](QStringView tipo) {
        if (tipo == u"S" || tipo == u"B" || tipo == u"CB")
            return 1;
        return tipo == u"F" || tipo == u"BF" || tipo == u"CBF" ? 2 : 0;
    };
    for (const TipoEsperado& uno : Esperados) {
        for (const TipoEsperado& otro : Esperados) {
            const bool afines = gruposDe(uno.codigo) != 0 && gruposDe(uno.codigo) == gruposDe(otro.codigo);
            EXPECT_EQ(MismaLineaVenta(7, uno.codigo, 7, otro.codigo), uno.codigo == otro.codigo || afines)
                << uno.codigo.toString().toStdString() << " and " << otro.codigo.toString().toStdString();
        }
    }
    EXPECT_FALSE(MismaLineaVenta(7, u"S", 8, u"CB"));
    EXPECT_FALSE(MismaLineaVenta(7, u"S", 7, u"s"));
}

} // namespace
} // namespace kestrane
