#include "instalacion/demo/dinero.h"

#include "instalacion/demo/mes_de_cada_sabor.h"

#include <cmath>
#include <utility>
#include <vector>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(ImportesDeLaDemo);

bool esCuarto(double importe)
{
    return importe * 4 == std::floor(importe * 4);
}

TEST(DineroDeLaDemo, RoundsToTheNearestQuarter)
{
    EXPECT_EQ(Dinero::euros(2.34).enEuros(), 2.25);
    EXPECT_EQ(Dinero::euros(2.375).enEuros(), 2.5);
    EXPECT_EQ(Dinero::euros(-2.34).enEuros(), -2.25);
    EXPECT_EQ((Dinero::euros(1.25) - Dinero::euros(2)).enEuros(), -0.75);
}

TEST_P(ImportesDeLaDemo, AllAmountsAreMultiplesOfAQuarter)
{
    const std::vector<std::pair<const TablaDemo*, std::vector<const char*>>> importes{
        {&tablas::CabeceraFactura, {"total", "efectivo", "tarjeta", "descuento"}},
        {&tablas::CabeceraFacturaAnulaciones, {"total", "efectivo", "tarjeta", "descuento"}},
        {&tablas::DetalleFactura, {"precio", "precio_unit", "impuesto", "impuesto_2", "descuento", "unidades"}},
        {&tablas::DetalleFacturaAnulaciones, {"precio", "precio_unit", "impuesto", "impuesto_2", "descuento", "unidades"}},
        {&tablas::DetalleFacturaTemp, {"precio", "precio_unit", "impuesto", "impuesto_2", "descuento", "unidades"}},
        {&tablas::CabeceraAbono, {"total", "efectivo", "tarjeta", "descuento"}},
        {&tablas::DetalleAbono, {"precio", "precio_unit", "impuesto", "unidades"}},
        {&tablas::CabeceraPago, {"importe"}},
        {&tablas::DetallePago, {"importe", "efectivo", "tarjeta"}},
        {&tablas::VentasCompartidas, {"importe"}},
        {&tablas::ValesDescuento, {"descuento"}},
        {&tablas::CajaInicial, {"importe"}},
        {&tablas::Gastos, {"importe"}},
        {&tablas::Retiradas, {"importe"}},
        {&tablas::Clientes, {"dindep"}},
        {&tablas::Productos, {"coste", "stock", "stockminimo", "stockconsumointerno"}},
        {&tablas::DetallePrecio, {"precio"}},
        {&tablas::Servicios, {"precio"}},
        {&tablas::Familias, {"precio"}},
        {&tablas::CabeceraPackSpa, {"precio"}},
        {&tablas::Arreglos, {"precio", "preciopago"}},
        {&tablas::Historicostock, {"coste", "cantidad"}}};
    for (const auto& [tabla, columnas] : importes) {
        for (const Fila& fila : filas(*tabla)) {
            for (const char* columna : columnas)
                ASSERT_TRUE(esCuarto(fila.doble(columna))) << tabla->nombre.data() << '.' << columna << ' ' << fila.doble(columna);
        }
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
