#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(DeudasDeLaDemo);

TEST_P(DeudasDeLaDemo, ADebtIsOfASaleOfThatClientAndNoMoreThanIt)
{
    auto ventas = porNumero(filas(tablas::CabeceraFactura), "numero");
    ventas.merge(porNumero(filas(tablas::CabeceraFacturaAnulaciones), "numero"));
    for (const Fila& deuda : filas(tablas::CabeceraPago)) {
        const auto venta = ventas.find(deuda.entero("num_factura"));
        ASSERT_NE(venta, ventas.end());
        EXPECT_EQ(venta->second.entero("cliente"), deuda.entero("cliente"));
        EXPECT_GT(deuda.entero("cliente"), 0);
        if (!venta->second.nulo("fechaventa")) { // the annulled ones may have lost it
            EXPECT_EQ(venta->second.fecha("fechaventa"), deuda.fecha("fecha"));
        }
        EXPECT_GT(deuda.doble("importe"), 0);
        EXPECT_LE(deuda.doble("importe"), venta->second.doble("total"));
        EXPECT_NE(venta->second.entero("pago"), 4);
    }
}

TEST_P(DeudasDeLaDemo, ADebtIsOpenUntilItsPaymentsAddUpToIt)
{
    std::map<int, double> pagado;
    const auto deudas = porNumero(filas(tablas::CabeceraPago), "num_pago");
    for (const Fila& pago : filas(tablas::DetallePago)) {
        const Fila& deuda = deudas.at(pago.entero("num_pago"));
        EXPECT_GE(pago.fecha("fecha"), deuda.fecha("fecha"));
        EXPECT_GT(pago.doble("importe"), 0);
        pagado[pago.entero("num_pago")] += pago.doble("importe");
        const int forma = pago.entero("forma_pago");
        const double partes = pago.doble("efectivo") + pago.doble("tarjeta");
        EXPECT_EQ(partes, forma <= 3 ? pago.doble("importe") : 0);
    }
    const auto vivas = codigos(filas(tablas::CabeceraFactura), "numero");
    int abiertas = 0;
    for (const auto& [numero, deuda] : deudas) {
        EXPECT_LE(pagado[numero], deuda.doble("importe"));
        const bool viva = vivas.contains(deuda.entero("num_factura"));
        EXPECT_EQ(deuda.entero("estado") != 0, !viva || pagado[numero] == deuda.doble("importe"));
        EXPECT_TRUE(viva || pagado[numero] == 0);
        abiertas += deuda.entero("estado") == 0 ? 1 : 0;
    }
    EXPECT_GT(abiertas, 0);
    EXPECT_LT(abiertas, static_cast<int>(deudas.size()));
}

} // namespace
} // namespace kestrane::demo::pruebas
