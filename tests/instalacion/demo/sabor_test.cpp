#include "instalacion/demo/sabor.h"

#include <QString>

#include <gtest/gtest.h>

#include <cmath>

namespace kestrane::demo::pruebas {
namespace {

class DatosDeSabor : public testing::TestWithParam<TipoTienda>
{
};

INSTANTIATE_TEST_SUITE_P(Sabores, DatosDeSabor, testing::ValuesIn(TodosLosTipos),
                         [](const auto& caso) { return sabor(caso.param).tipoPrograma.toString().toStdString(); });

TEST_P(DatosDeSabor, PricesAreQuartersAboveTheCost)
{
    const auto esCuarto = [](double importe) { return importe * 4 == std::floor(importe * 4); };
    const Sabor& datos = sabor(GetParam());
    for (const DatosServicio& uno : datos.servicios)
        EXPECT_TRUE(esCuarto(uno.precio)) << uno.nombre.toString().toStdString();
    for (const DatosProducto& uno : datos.productos) {
        EXPECT_TRUE(esCuarto(uno.precio) && esCuarto(uno.coste) && uno.coste < uno.precio) << uno.nombre.toString().toStdString();
        const bool porPeso = uno.forma == FormaVenta::Peso;
        EXPECT_TRUE(!porPeso || uno.precio == std::floor(uno.precio)) << uno.nombre.toString().toStdString();
        EXPECT_TRUE(0 < uno.proveedor && uno.proveedor <= static_cast<int>(datos.proveedores.size()));
        EXPECT_TRUE(0 < uno.seccion && uno.seccion <= static_cast<int>(datos.secciones.size()));
    }
    for (const DatosArreglo& uno : datos.arreglos)
        EXPECT_TRUE(esCuarto(uno.precio) && esCuarto(uno.pagoTaller));
}

TEST_P(DatosDeSabor, PacksAreOfItsServicesAndCheaperThanThem)
{
    const Sabor& datos = sabor(GetParam());
    for (const auto& lista : {datos.packs, datos.packsSpa}) {
        for (const DatosPack& pack : lista) {
            double suma = 0;
            for (const int servicio : pack.servicios) {
                ASSERT_LT(servicio, static_cast<int>(datos.servicios.size()));
                suma += servicio < 0 ? 0 : datos.servicios[static_cast<std::size_t>(servicio)].precio;
            }
            EXPECT_LT(pack.precio, suma) << pack.nombre.toString().toStdString();
        }
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
