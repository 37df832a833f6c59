#include "layouts/papel_de_caja.h"

// The cash by employees and by tickets on paper: what was sold, and what should be in the drawer.

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

const QString Movimientos =
    u"Ventas no Cobradas: -37,50 Gastos del Dia: -23,40 Cobros de deudas Pendientes: 30,00 "
    "Caja Inicial: 150,00 Ingreso en Deposito: 40,00 Retiradas del dia: -100,00 Suma de los movimientos 59,10"_s;

class CajaGeneral : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override { llenaCajaGeneral(m_tienda); }

    [[nodiscard]] static QString layout() { return QString::fromStdString(GetParam()); }
    [[nodiscard]] PapelDeCaja imprime() { return imprimeCaja(m_tienda, layout()); }

    TiendaDePrueba m_tienda;
};

TEST_P(CajaGeneral, AddsTheBalanceToWhatWasSold)
{
    const QString total = vaEnRollo(layout()) ? u"TOTAL DE CAJA"_s : u"Total de caja"_s;
    EXPECT_TRUE(imprime().dice(u"Ventas de los empleados 383,50 Saldo de los movimientos 59,10 "_s + total + u" 442,60"_s));
}

TEST_P(CajaGeneral, ListsTheMovementsWithTheirSum)
{
    EXPECT_TRUE(imprime().dice(Movimientos));
}

TEST_P(CajaGeneral, PrintsTheMovementsWhenNobodySold)
{
    m_tienda.ejecutaListados(u"delete from informes"_s);
    const PapelDeCaja papel = imprime();
    EXPECT_TRUE(papel.dice(Movimientos));
    EXPECT_TRUE(papel.calla(u"Saldo"_s));
}

TEST_P(CajaGeneral, SaysNothingOfWhatNobodySells)
{
    EXPECT_TRUE(imprime().calla(u"Spa"_s));
}

INSTANTIATE_TEST_SUITE_P(Layouts, CajaGeneral, testing::ValuesIn(nombresDeCaja(4, 3)), nombreDePrueba);

class CajaPorEmpleados : public testing::Test
{
protected:
    void SetUp() override { llenaCajaGeneral(m_tienda); }

    TiendaDePrueba m_tienda;
};

TEST_F(CajaPorEmpleados, SumsEachEmployeeAndEachFamily)
{
    EXPECT_TRUE(imprimeCaja(m_tienda, u"K_caja_general.rpt"_s)
                    .diceEnOrden({u"Empleado Servicios Pack Servicios Productos Total"_s, u"Ana P 120,50 30,00 150,50"_s,
                                  u"Luis G -12,00 200,00 188,00"_s, u"ompartida,Ana P,Luis G 45,00 45,00"_s,
                                  u"Ventas 153,50 200,00 30,00 383,50"_s}));
}

TEST_F(CajaPorEmpleados, PutsServicesFirstOnTheRollOfASalon)
{
    EXPECT_TRUE(imprimeCaja(m_tienda, u"K_caja_general_ticket.rpt"_s)
                    .diceEnOrden({u"Ana P 150,50 Servicios 120,50 Productos 30,00"_s,
                                  u"Luis G 188,00 Servicios -12,00 Pack Servicios 200,00"_s,
                                  u"Servicios 153,50 Pack Servicios 200,00 Productos 30,00"_s}));
}

TEST_F(CajaPorEmpleados, PutsProductsFirstOnTheRollOfAShop)
{
    EXPECT_TRUE(imprimeCaja(m_tienda, u"T_caja_general_ticket.rpt"_s)
                    .diceEnOrden({u"Ana P 150,50 Productos 30,00 Servicios 120,50"_s,
                                  u"Productos 30,00 Servicios 153,50 Pack Servicios 200,00"_s}));
}

class CajaPorTickets : public testing::Test
{
protected:
    [[nodiscard]] PapelDeCaja imprime() { return imprimeCaja(m_tienda, u"K_caja_tickets.rpt"_s); }

    TiendaDePrueba m_tienda;
};

TEST_F(CajaPorTickets, ListsEachTicketWithItsMark)
{
    llenaCajaTickets(m_tienda);
    EXPECT_TRUE(imprime().diceEnOrden({u"501 Contado 100,00 100,00"_s, u"502 Tarjeta 80,50 68,00"_s,
                                       u"503 Albaran Contado y Tarjeta 60,00 60,00"_s, u"504 Deposito 0,00 0,00"_s,
                                       u"-4 Eliminado Contado 12,00 12,00"_s, u"88 / 490 Abono Contado -20,00 -20,00"_s,
                                       u"Caja Inicial 150,00"_s}));
}

TEST_F(CajaPorTickets, DoesNotAddTheOpeningCashToTheTickets)
{
    llenaCajaTickets(m_tienda);
    EXPECT_TRUE(
        imprime().diceEnOrden({u"Importe, sin la caja inicial 232,50 Cobrado 220,00"_s, u"Contado (3) 92,00 92,00"_s,
                               u"Tarjeta (1) 80,50 68,00"_s, u"Contado y Tarjeta (1) 60,00 60,00"_s, u"Deposito (1) 0,00 0,00"_s}));
}

TEST_F(CajaPorTickets, SaysWhatShouldBeInTheDrawerAndTakesTheUnpaidFromATicketRow)
{
    llenaCajaTickets(m_tienda);
    EXPECT_TRUE(
        imprime().dice(u"Ventas no cobradas -12,50 Deudas cobradas 30,00 Tarjeta 98,00 Efectivo, con la caja inicial 265,00 "
                       "Gastos -23,40 Retiradas -100,00 EN EL CAJÓN 141,60"_s));
}

TEST_F(CajaPorTickets, SaysTaxesWithTheirBaseAndTheRemarks)
{
    llenaCajaTickets(m_tienda);
    const PapelDeCaja papel = imprime();
    EXPECT_TRUE(
        papel.dice(u"al 0% 0,00 0,00 0,00 al 10% 100,00 10,00 110,00 al 21% 100,00 21,00 121,00 Suma 200,00 31,00 231,00"_s));
    EXPECT_TRUE(papel.dice(u"Observaciones de Caja: 20/11/2026 - Falta cambio"_s));
}

TEST_F(CajaPorTickets, PrintsADayOnWhichOnlyDebtsWereCollected)
{
    ponInforme(m_tienda, {{u"numerico12"_s, 30.0}, {u"texto1"_s, u"Observaciones de Caja: \r\n"_s}});
    const PapelDeCaja papel = imprime();
    EXPECT_TRUE(papel.dice(u"Cuentas de la caja Deudas cobradas 30,00"_s));
    for (const QString& rotulo : {u"CAJÓN"_s, u"Efectivo"_s, u"Ticket"_s, u"Observaciones"_s})
        EXPECT_TRUE(papel.calla(rotulo));
}

} // namespace
} // namespace kestrane::prueba
