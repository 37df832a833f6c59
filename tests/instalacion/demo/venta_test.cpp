#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(VentasDeLaDemo);

std::map<int, double> sumaPorVenta(const std::vector<Fila>& lineas, const char* columna)
{
    std::map<int, double> sumas;
    for (const Fila& linea : lineas)
        sumas[linea.entero("num_factura")] += linea.doble(columna);
    return sumas;
}

struct Par
{
    const TablaDemo* cabecera;
    const TablaDemo* detalle;
};

const Par Vivas{&tablas::CabeceraFactura, &tablas::DetalleFactura};
const Par Anuladas{&tablas::CabeceraFacturaAnulaciones, &tablas::DetalleFacturaAnulaciones};

TEST_P(VentasDeLaDemo, TheTotalOfASaleIsTheSumOfItsLines)
{
    for (const Par& par : {Vivas, Anuladas}) {
        auto precios = sumaPorVenta(filas(*par.detalle), "precio");
        auto descuentos = sumaPorVenta(filas(*par.detalle), "descuento");
        for (const Fila& venta : filas(*par.cabecera)) {
            EXPECT_EQ(venta.doble("total"), precios[venta.entero("numero")]) << venta.entero("numero");
            EXPECT_EQ(venta.doble("descuento"), descuentos[venta.entero("numero")]) << venta.entero("numero");
        }
    }
}

TEST_P(VentasDeLaDemo, ALostKindAndAPackOfTheOldProgramStandOnlyWhereTheDateIsLostToo)
{
    std::set<int> sinFecha;
    for (const Fila& venta : filas(tablas::CabeceraFacturaAnulaciones)) {
        if (venta.nulo("fechaventa"))
            sinFecha.insert(venta.entero("numero"));
    }
    int perdidos = 0;
    for (const Fila& linea : filas(tablas::DetalleFacturaAnulaciones)) {
        const bool raro = linea.nulo("tipo_venta") || linea.texto("tipo_venta") == u"SP";
        EXPECT_TRUE(!raro || sinFecha.contains(linea.entero("num_factura")));
        perdidos += linea.nulo("tipo_venta") ? 1 : 0;
    }
    EXPECT_GT(perdidos, 0);
    for (const Fila& linea : filas(tablas::DetalleFactura))
        EXPECT_TRUE(!linea.nulo("tipo_venta") && linea.texto("tipo_venta") != u"SP");
}

} // namespace
} // namespace kestrane::demo::pruebas
