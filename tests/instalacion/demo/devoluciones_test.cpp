#include "instalacion/demo/mes_de_cada_sabor.h"

#include <algorithm>
#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(DevolucionesDeLaDemo);

TEST_P(DevolucionesDeLaDemo, AReturnBringsBackLinesOfASaleThatWasMadeBefore)
{
    const auto ventas = porNumero(filas(tablas::CabeceraFactura), "numero");
    std::multimap<std::pair<int, int>, Fila> vendidas;
    for (const Fila& linea : filas(tablas::DetalleFactura))
        vendidas.emplace(std::pair{linea.entero("num_factura"), linea.entero("codigo")}, linea);
    std::map<int, double> sumas;
    int sinSegundo = 0;
    for (const Fila& linea : filas(tablas::DetalleAbono)) {
        sumas[linea.entero("num_abono")] += linea.doble("precio");
        sinSegundo += linea.nulo("impuesto_2") ? 1 : 0;
        const auto [desde, hasta] = vendidas.equal_range({linea.entero("num_factura"), linea.entero("codigo")});
        const bool cabe = std::any_of(desde, hasta, [&](const auto& vendida) {
            return vendida.second.texto("tipo_venta") == linea.texto("tipo_venta") &&
                   vendida.second.doble("unidades") >= linea.doble("unidades") &&
                   vendida.second.doble("precio") >= linea.doble("precio");
        });
        EXPECT_TRUE(cabe) << linea.entero("num_factura") << ' ' << linea.texto("producto").toStdString();
    }
    EXPECT_GT(sinSegundo, 0);
    for (const Fila& abono : filas(tablas::CabeceraAbono)) {
        const Fila& venta = ventas.at(abono.entero("num_factura"));
        EXPECT_LE(venta.fecha("fechaventa"), abono.fecha("fechaventa"));
        EXPECT_EQ(venta.entero("cliente"), abono.entero("cliente"));
        EXPECT_EQ(venta.texto("tienda"), abono.texto("tienda"));
        EXPECT_EQ(abono.doble("total"), sumas[abono.entero("numero")]);
        const double partes = abono.doble("efectivo") + abono.doble("tarjeta");
        EXPECT_EQ(partes, abono.entero("pago") <= 3 ? abono.doble("total") : 0) << abono.entero("numero");
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
