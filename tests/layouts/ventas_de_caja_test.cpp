#include "layouts/papel_de_caja.h"

// The sales by service and by form of payment on paper.

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

class VentasPorServicios : public testing::Test
{
protected:
    void SetUp() override
    {
        llenaServicios(m_tienda);
        llenaObservaciones(m_tienda);
    }

    TiendaDePrueba m_tienda;
};

TEST_F(VentasPorServicios, ListsBlockByBlockWithUnitsAndAmounts)
{
    EXPECT_TRUE(
        imprimeCaja(m_tienda, u"K_porservicios.rpt"_s)
            .diceEnOrden({u"602 Eva Soto 101 Corte Ana Paz Contado 12,10 2 20,00 4,20 24,20"_s,
                          u"Suma de Ventas Generales 4 60,00 12,60 72,60"_s, u"Suma de Ventas de Bonos 1 300,00 63,00 363,00"_s,
                          u"Suma de Devoluciones de venta -1 -10,00 -2,10 -12,10"_s}));
}

TEST_F(VentasPorServicios, SumsEachServiceUnderItsPlainName)
{
    EXPECT_TRUE(imprimeCaja(m_tienda, u"K_porservicios.rpt"_s)
                    .dice(u"101 Corte 2 10,00 2,10 12,10 102 Tinte 2 340,00 71,40 411,40 Suma 4 350,00 73,50 423,50"_s));
}

TEST_F(VentasPorServicios, SaysFormsOfPaymentBlocksTotalsAndRemarks)
{
    EXPECT_TRUE(imprimeCaja(m_tienda, u"K_porservicios.rpt"_s)
                    .diceEnOrden({u"Contado 350,00 423,50 Suma 350,00 423,50"_s, u"Ventas Generales 60,00 72,60"_s,
                                  u"Tickets 7 Unidades de servicio 4 Servicios, con impuestos 423,50 Caja inicial 150,00"_s,
                                  u"Cobros de deudas pendientes 30,00 Gastos -23,40"_s,
                                  u"Observaciones de caja 20/11/2026 9:05 Ana P Falta cambio"_s}));
}

TEST_F(VentasPorServicios, SaysTheSameOnTheRoll)
{
    EXPECT_TRUE(imprimeCaja(m_tienda, u"K_porservicios_ticket.rpt"_s)
                    .diceEnOrden({u"602 Corte 2 24,20 Eva Soto · Ana Paz · Contado"_s, u"Suma de Ventas Generales 4 72,60"_s,
                                  u"Suma de Ventas de Bonos 1 363,00"_s, u"Suma de Devoluciones de venta -1 -12,10"_s,
                                  u"Contado 350,00 423,50"_s, u"101 Corte 2 12,10 102 Tinte 2 411,40"_s,
                                  u"Tickets 7 Unidades de servicio 4 Caja inicial 150,00"_s,
                                  u"Cobros de deudas pendientes 30,00 Gastos -23,40 SERVICIOS, CON IMPUESTOS 423,50"_s,
                                  u"20/11/2026 9:05 Ana P Falta cambio"_s}));
}

class VentasPorFormasDePago : public testing::Test
{
protected:
    void SetUp() override { llenaFormasDePago(m_tienda); }
    [[nodiscard]] PapelDeCaja imprime() { return imprimeCaja(m_tienda, u"K_formapago.rpt"_s); }

    TiendaDePrueba m_tienda;
};

TEST_F(VentasPorFormasDePago, GroupsByFormWithTheUnpaidLast)
{
    EXPECT_TRUE(imprime().diceEnOrden({u"Suma de Contado 25,00 1,05 26,05"_s, u"Suma de Tarjeta 43,40 0,00 43,40"_s,
                                       u"Suma de Contado y Tarjeta 0,00 0,00 0,00"_s,
                                       u"Suma de Venta no cobrada (1 - Deuda) 30,00 6,30 36,30"_s}));
}

TEST_F(VentasPorFormasDePago, ShowsTheMoneyOfASplitSaleInCashAndInCard)
{
    EXPECT_TRUE(imprime().diceEnOrden({u"702 Eva Soto Pagado al Contado Factura: 702 Empleado 3 20,00 0,00 20,00"_s,
                                       u"702 Eva Soto Pagado en Tarjeta Factura: 702 Empleado 3 28,40 0,00 28,40"_s,
                                       u"702 Eva Soto Tinte Ana Paz 0,00 0,00 0,00"_s}));
}

TEST_F(VentasPorFormasDePago, SaysFormsAndMovements)
{
    EXPECT_TRUE(imprime().diceEnOrden({u"Contado 25,00 26,05 Tarjeta 43,40 43,40 Contado y Tarjeta 0,00 0,00"_s,
                                       u"Venta no cobrada (1 - Deuda) 30,00 36,30 Suma 98,40 105,75"_s,
                                       u"Ventas no Cobradas: -37,50"_s, u"Suma de los movimientos 59,10"_s}));
}

TEST_F(VentasPorFormasDePago, AddsTheBalanceThatLeavesOutDebtsCollected)
{
    const PapelDeCaja papel = imprime();
    EXPECT_TRUE(papel.dice(u"Suma de las líneas, con impuestos 105,75 Saldo de los movimientos, sin los cobros 29,10 "
                           "Total de caja, por todas las formas 134,85"_s));
    EXPECT_TRUE(papel.calla(u"Caja inicial 0,00"_s)); // the row's own value, which is no opening cash
}

} // namespace
} // namespace kestrane::prueba
