#include "layouts/papel_de_caja.h"

// The day's cash and the delivery notes on paper: sums worked out by hand from the rows of filas_de_caja.cpp.

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

const QString ConCoste = u"Coste de los productos 30,30 Productos menos su coste 37,50"_s;
const QString VentasDelDia =
    u"Tickets 5 Unidades de servicio 4 Servicios y packs, con impuestos 1.234,50 Productos, con impuestos 67,80 "_s +
    u"Servicios y productos, con impuestos 1.302,30"_s;
const QString CajaDelDia = u"Caja inicial 150,00 Cobros de deudas pendientes 30,00 Gastos -23,40"_s;

class CajaDiaria : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override
    {
        llenaCajaDiaria(m_tienda);
        llenaObservaciones(m_tienda);
    }

    [[nodiscard]] static QString layout() { return QString::fromStdString(GetParam()); }
    [[nodiscard]] PapelDeCaja imprime() { return imprimeCaja(m_tienda, layout()); }
    [[nodiscard]] static bool esDeComercio() { return layout().startsWith(u'T'); }

    TiendaDePrueba m_tienda;
};

TEST_P(CajaDiaria, SaysWhatCameInByEachFormOfPaymentNetAndWithTaxes)
{
    EXPECT_TRUE(imprime().diceEnOrden({u"Por forma de pago Neto Con impuestos"_s, u"Contado 3,65 6,59"_s,
                                       u"Tarjeta 200,00 235,70"_s, u"Contado y Tarjeta 20,00 24,20"_s, u"Deposito 0,00 0,00"_s,
                                       u"Sin forma de pago 26,60 26,60"_s, u"Suma 250,25 293,09"_s}));
}

TEST_P(CajaDiaria, SaysTheTotalsThatEachRowHas)
{
    const QString coste = esDeComercio() ? u' ' + ConCoste : QString{};
    EXPECT_TRUE(imprime().dice(VentasDelDia + coste + u' ' + CajaDelDia));
}

TEST_P(CajaDiaria, SaysTheCostOfProductsInShopsAlone)
{
    EXPECT_EQ(bool{imprime().dice(ConCoste)}, esDeComercio());
}

TEST_P(CajaDiaria, SaysTheRemarksOfTheDeskWithTheirHour)
{
    EXPECT_TRUE(imprime().dice(u"Observaciones de caja 20/11/2026 9:05 Ana P Falta cambio 20/11/2026 20:30 Luis G Sin línea"_s));
}

TEST_P(CajaDiaria, SaysTheVouchersInShopsAlone)
{
    llenaVales(m_tienda);
    const PapelDeCaja papel = imprime();
    EXPECT_EQ(bool{papel.calla(u"Vales"_s)}, !esDeComercio());
    EXPECT_EQ(papel.filasDe.value(u"Vales"_s), esDeComercio() ? 2 : 0);
    EXPECT_EQ(papel.filasDe.value(u"Observaciones"_s), 2);
    if (esDeComercio()) {
        EXPECT_TRUE(papel.dice(u"Importe Usado en 20/11/2026 901 Eva Soto Abono venta = 901 3 25,50 Venta = 1003 "
                               "20/11/2026 902 Eva Soto Abono venta = 902 3 11,90 Sin usar Vales por usar: 11,90 37,40"_s));
    }
}

TEST_P(CajaDiaria, LeavesOutTheBoxesThatHaveNothing)
{
    m_tienda.ejecutaListados(u"delete from subinformes"_s);
    const PapelDeCaja papel = imprime();
    EXPECT_TRUE(papel.calla(u"Observaciones"_s));
    EXPECT_TRUE(papel.calla(u"Vales"_s));
}

INSTANTIATE_TEST_SUITE_P(Layouts, CajaDiaria, testing::ValuesIn(nombresDeCaja(0, 4)), nombreDePrueba);

class CajaDiariaGeneral : public CajaDiaria
{
};

TEST_P(CajaDiariaGeneral, SumsEachBlockAndPutsRowsWithoutOneLast)
{
    EXPECT_TRUE(imprime().diceEnOrden(
        {u"Por bloques Neto Con impuestos"_s, u"Caja Inicial 150,00 150,00"_s, u"Ventas Generales 75,00 90,75"_s,
         u"Ventas de Bonos 80,00 96,80"_s, u"Cobros de Deudas Pendientes 30,00 30,00"_s, u"Ventas no Cobradas -6,15 -6,15"_s,
         u"Devoluciones de venta -14,20 -16,30"_s, u"Gastos del Dia -23,40 -23,40"_s, u"Retiradas del Dia -100,00 -100,00"_s,
         u"Ventas Regularizadas 9,00 10,89"_s, u"Otras líneas 50,00 60,50"_s, u"Suma 250,25 293,09"_s}));
}

TEST_P(CajaDiariaGeneral, ListsBlockByBlockWithItsSumBelow)
{
    EXPECT_TRUE(imprime().diceEnOrden(
        {u"Suma de Caja Inicial 150,00 0,00 150,00"_s, u"Suma de Ventas Generales 75,00 15,75 90,75"_s,
         u"Suma de Ventas de Bonos 80,00 16,80 96,80"_s, u"Suma de Cobros de Deudas Pendientes 30,00 0,00 30,00"_s,
         u"Suma de Ventas no Cobradas -6,15 0,00 -6,15"_s, u"Suma de Devoluciones de venta -14,20 -2,10 -16,30"_s,
         u"Suma de Gastos del Dia -23,40 0,00 -23,40"_s, u"Suma de Retiradas del Dia -100,00 0,00 -100,00"_s,
         u"Suma de Ventas Regularizadas 9,00 1,89 10,89"_s, u"Suma de Otras líneas 50,00 10,50 60,50"_s}));
}

TEST_P(CajaDiariaGeneral, ShowsTheClientOnceATicketAndItsSumOnItsLastLine)
{
    EXPECT_TRUE(imprime().dice(u"20/11/2026 1001 Begoña Núñez 11H 1 X Corte Ana Paz Contado 10,00 2,10 12,10 "
                               "20/11/2026 1001 1 X Champú Ana Paz Contado 5,00 1,05 6,05 18,15"_s));
}

TEST_P(CajaDiariaGeneral, DoesNotPrintTheTaxNumberOfAnotherClient)
{
    EXPECT_TRUE(imprime().dice(u"1002 Cliente Generico 1 X Tinte Ana Paz Tarjeta 40,00 8,40 48,40 48,40"_s));
}

TEST_P(CajaDiariaGeneral, ShowsMovementsWithoutATicketNumber)
{
    EXPECT_TRUE(imprime().dice(u"Gastos del Dia 20/11/2026 Café Ana Paz -23,40 0,00 -23,40 Suma"_s));
}

INSTANTIATE_TEST_SUITE_P(Layouts, CajaDiariaGeneral, testing::ValuesIn(nombresDeCaja(0, 2)), nombreDePrueba);

class CajaDiariaResumido : public CajaDiaria
{
};

TEST_P(CajaDiariaResumido, SumsEachBlockByFormsOfPayment)
{
    EXPECT_TRUE(imprime().diceEnOrden(
        {u"Caja Inicial 1 150,00 0,00 150,00"_s, u"Ventas Generales 5 75,00 15,75 90,75"_s, u"Contado 2 15,00 3,15 18,15"_s,
         u"Tarjeta 1 40,00 8,40 48,40"_s, u"Contado y Tarjeta 1 20,00 4,20 24,20"_s, u"Deposito 1 0,00 0,00 0,00"_s,
         u"Ventas de Bonos 1 80,00 16,80 96,80"_s, u"Otras líneas 1 50,00 10,50 60,50 Tarjeta 1 50,00 10,50 60,50"_s,
         u"Suma de los bloques 14 250,25 42,84 293,09"_s}));
}

TEST_P(CajaDiariaResumido, FitsOnOnePage)
{
    llenaVales(m_tienda);
    EXPECT_EQ(imprime().paginas.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Layouts, CajaDiariaResumido, testing::ValuesIn(nombresDeCaja(2, 2)), nombreDePrueba);

class Albaranes : public testing::Test
{
protected:
    void SetUp() override { llenaAlbaranes(m_tienda); }

    TiendaDePrueba m_tienda;
    const QString m_layout = u"T_Albaranes.rpt"_s;
};

TEST_F(Albaranes, ListsNotesWithTheirSumsAndRowsWithoutBlockLast)
{
    const PapelDeCaja papel = imprimeCaja(m_tienda, m_layout);
    EXPECT_TRUE(papel.dice(u"20/11/2026 71 Eva Soto 2 X Laca Ana Paz Contado 10,00 2,10 12,10 "
                           "20/11/2026 71 1 X Champú Ana Paz Contado 5,00 1,05 6,05 18,15"_s));
    EXPECT_TRUE(papel.diceEnOrden({u"Suma de Albaranes 19,00 3,99 22,99"_s, u"Suma de Otras líneas 80,00 16,80 96,80"_s}));
}

TEST_F(Albaranes, SaysFormsOfPaymentBlocksAndTotals)
{
    EXPECT_TRUE(imprimeCaja(m_tienda, m_layout)
                    .diceEnOrden({u"Contado 15,00 18,15"_s, u"Tarjeta 84,00 101,64"_s, u"Albaranes 19,00 22,99"_s,
                                  u"Otras líneas 80,00 96,80"_s, u"Albaranes 2 Unidades de servicio 1"_s,
                                  u"Servicios y packs, con impuestos 96,80 Productos, con impuestos 22,99"_s,
                                  u"Servicios y productos, con impuestos 119,79"_s,
                                  u"Coste de los productos 9,50 Productos menos su coste 13,49"_s}));
}

TEST_F(Albaranes, HaveNoOpeningCashDebtsOrExpenses)
{
    const PapelDeCaja papel = imprimeCaja(m_tienda, m_layout);
    for (const QString& rotulo : {u"Caja inicial"_s, u"Cobros"_s, u"Gastos"_s})
        EXPECT_TRUE(papel.calla(rotulo));
}

} // namespace
} // namespace kestrane::prueba
