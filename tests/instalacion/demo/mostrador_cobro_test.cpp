#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(CobroDeLaDemo);

TEST_P(CobroDeLaDemo, CashAndCardHoldWhatTheirCodeSays)
{
    for (const Fila& venta : filas(tablas::CabeceraFactura)) {
        const int pago = venta.entero("pago");
        const double total = venta.doble("total");
        const double efectivo = venta.doble("efectivo");
        const double tarjeta = venta.doble("tarjeta");
        if (pago == 3) {
            EXPECT_TRUE(efectivo > 0 && tarjeta > 0 && efectivo + tarjeta == total) << venta.entero("numero");
        } else {
            EXPECT_TRUE(efectivo == (pago == 1 ? total : 0) && tarjeta == (pago == 2 ? total : 0)) << venta.entero("numero");
        }
    }
}

TEST_P(CobroDeLaDemo, EveryPaymentIsUsedAndKnown)
{
    std::set<int> conocidas;
    for (const Fila& forma : filas(tablas::Formapago))
        conocidas.insert(forma.entero("codigo"));
    std::set<int> usadas;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        usadas.insert(venta.entero("pago"));
    for (const int codigo : {1, 2, 3, 4, 5})
        EXPECT_TRUE(usadas.contains(codigo)) << codigo;
    for (const int codigo : usadas)
        EXPECT_TRUE(conocidas.contains(codigo)) << codigo;
}

TEST_P(CobroDeLaDemo, TheDepositOfAClientIsWhatWasPaidInLessWhatWasSpent)
{
    std::map<int, double> depositos;
    std::map<int, int> clientes;
    for (const Fila& venta : filas(tablas::CabeceraFactura)) {
        clientes[venta.entero("numero")] = venta.entero("cliente");
        if (venta.entero("pago") == 4)
            depositos[venta.entero("cliente")] -= venta.doble("total");
    }
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        if (linea.texto("tipo_venta") == u"S" && linea.entero("codigo") == 2)
            depositos[clientes[linea.entero("num_factura")]] += linea.doble("precio");
    }
    for (const Fila& abono : filas(tablas::CabeceraAbono)) {
        if (abono.entero("pago") == 4)
            depositos[abono.entero("cliente")] += abono.doble("total");
    }
    for (const Fila& linea : filas(tablas::DetalleAbono)) {
        if (linea.texto("tipo_venta") == u"S" && linea.entero("codigo") == 2)
            depositos[clientes[linea.entero("num_factura")]] -= linea.doble("precio");
    }
    int conDinero = 0;
    for (const Fila& cliente : filas(tablas::Clientes)) {
        EXPECT_EQ(cliente.doble("dindep"), depositos[cliente.entero("codigo")]) << cliente.entero("codigo");
        EXPECT_GE(cliente.doble("dindep"), 0);
        conDinero += cliente.doble("dindep") > 0 ? 1 : 0;
    }
    EXPECT_GT(conDinero, 0);
}

} // namespace
} // namespace kestrane::demo::pruebas
