#include "instalacion/demo/mes_de_cada_sabor.h"

#include <algorithm>
#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(ValesDeLaDemo);

TEST_P(ValesDeLaDemo, InTheShopsAReturnLeavesAVoucherNowAndThenAndSomeAreSpent)
{
    const auto ventas = porNumero(filas(tablas::CabeceraFactura), "numero");
    std::multimap<int, Fila> abonos;
    for (const Fila& abono : filas(tablas::CabeceraAbono))
        abonos.emplace(abono.entero("num_factura"), abono);
    int gastados = 0;
    const auto vales = filas(tablas::ValesDescuento);
    for (const Fila& vale : vales) {
        const auto [desde, hasta] = abonos.equal_range(vale.entero("num_factura"));
        EXPECT_TRUE(std::any_of(desde, hasta, [&](const auto& abono) {
            return abono.second.doble("total") == vale.doble("descuento") &&
                   abono.second.fecha("fechaventa") == vale.fecha("desde");
        })) << vale.entero("num_factura");
        if (vale.nulo("num_factura_aplicado"))
            continue;
        ++gastados;
        const Fila& venta = ventas.at(vale.entero("num_factura_aplicado"));
        EXPECT_GT(venta.fecha("fechaventa"), vale.fecha("desde"));
        EXPECT_GE(venta.doble("total"), vale.doble("descuento"));
        const Fila& devuelta = ventas.at(vale.entero("num_factura"));
        EXPECT_EQ(venta.texto("tienda"), devuelta.texto("tienda"));
        EXPECT_EQ(venta.entero("cliente"), devuelta.entero("cliente"));
    }
    if (!comercio()) {
        EXPECT_TRUE(vales.empty());
        return;
    }
    EXPECT_GT(gastados, 0);
    EXPECT_LT(gastados, static_cast<int>(vales.size()));
    EXPECT_LT(vales.size(), abonos.size());
}

} // namespace
} // namespace kestrane::demo::pruebas
