#include "cash/listado_formas_pago_ventas.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FormasPagoCobrosTest : public prueba::PruebaDeInforme<ListadoFormasPagoVentas>
{
protected:
    QStringList resumen()
    {
        ListadoFormasPagoVentas(m_tienda.listados);
        return m_tienda.filas(u"texto1,numerico1"_s, u"subinformes"_s);
    }
};

TEST_F(FormasPagoCobrosTest, APaymentOfADebtIsARowOfItsSaleWithoutSortKeyAndATicket)
{
    m_tienda.debe(9, 70, 50, 5, u"#01/02/2024#"_s);
    m_tienda.paga(9, 20.5, 2);
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto32,texto2,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              QStringList{u"15/03/2024|70|70|70|Eva Ruiz||Ana P|Tarjeta|2|20,5|0|nulo|Ventas Generales"_s});
    EXPECT_EQ(m_tienda.filas(u"numerico17,numerico18,numerico19"_s), QStringList{u"1|20,5|0"_s})
        << "the payment is a row: the balance leaves it out";
}

TEST_F(FormasPagoCobrosTest, ASplitPaymentOfADebtShowsItsMoneyTwice)
{
    m_tienda.debe(9, 70, 50, 5, u"#01/02/2024#"_s); // made by employee 2
    m_tienda.paga(9, 20, 3, u"#03/15/2024#"_s, 15, 5);
    const QString comun = u"15/03/2024|70|70|70|Eva Ruiz|"_s;
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto32,texto2,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              (QStringList{comun + u"|Ana P|Partido|3|20|0|nulo|Ventas Generales"_s,
                           comun + u"Pagado al Contado Factura: 70|2|Contado|1|15|0|2|Ventas Generales"_s,
                           comun + u"Pagado en Tarjeta Factura: 70|2|Tarjeta|2|5|0|2|Ventas Generales"_s}));
}

TEST_F(FormasPagoCobrosTest, PaymentsStandByTheNumberOfTheirDebt)
{
    m_tienda.debe(9, 70, 50);
    m_tienda.debe(4, 71, 50);
    m_tienda.paga(9, 1);
    m_tienda.paga(4, 2);
    m_tienda.paga(9, 3);
    m_tienda.paga(5, 4); // of no debt
    EXPECT_EQ(filas(u"numerico2"_s), (QStringList{u"2"_s, u"1"_s, u"3"_s}));
}

TEST_F(FormasPagoCobrosTest, AReturnTurnsTheSignOfItsSale)
{
    m_tienda.devuelve({.numero = 3, .cliente = 5, .pago = u"2"_s, .venta = 70}, {{.impuesto2 = u"null"_s}});
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto32,texto2,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              QStringList{u"15/03/2024|3|3 / 70|3|Eva Ruiz|Abono: Corte|Ana Paz|Tarjeta|2|-10|-2,1|6|Devoluciones de venta"_s});
}

TEST_F(FormasPagoCobrosTest, AReturnWithoutTaxHasAPlainZero)
{
    m_tienda.devuelve({.venta = 70}, {{.impuesto = u"0"_s}});
    EXPECT_EQ(filas(u"numerico2,numerico3"_s), QStringList{u"-12,1|0"_s});
}

TEST_F(FormasPagoCobrosTest, InRetailAReturnThatLeftAVoucherIsListedToo)
{
    m_tienda.contexto.TipoPrograma = u"TPV"_s;
    m_tienda.devuelve({.venta = 70});
    m_tienda.vale(70, 5);
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"Abono: Corte"_s});
}

TEST_F(FormasPagoCobrosTest, AReturnLowersTheTotalsWhateverItWasPaidWith)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (10, 4)"_s);
    m_tienda.devuelve({.pago = u"4"_s, .venta = 70}, {{.precio = u"1"_s},
                                                      {.tipo = u"'F'"_s, .precio = u"2"_s},
                                                      {.tipo = u"'SP'"_s, .precio = u"4"_s},
                                                      {.tipo = u"'PSPA'"_s, .precio = u"8"_s},
                                                      {.tipo = u"'P'"_s, .unidades = 2, .precio = u"16"_s}});
    EXPECT_EQ(filas(u"numerico13,numerico14,numerico9,numerico8"_s).constFirst(), u"-7|-16|-8|-1"_s);
}

TEST_F(FormasPagoCobrosTest, AReturnOfTheReservedServiceIsTakenFromBothSums)
{
    m_tienda.vende({.numero = 70}, {{.codigo = 2, .precio = u"20"_s}});
    m_tienda.devuelve({.venta = 70}, {{.codigo = 2, .precio = u"12"_s}});
    EXPECT_EQ(filas(u"numerico13,numerico8,numerico19"_s), QStringList{u"-12|-1|8"_s});
}

TEST_F(FormasPagoCobrosTest, TheSummaryBoxHasTheAmountsAboveZeroInItsOrder)
{
    m_tienda.vende({.numero = 7}, {{.codigo = 2, .precio = u"20"_s}, {}});
    m_tienda.debe(9, 7, 4.5);
    m_tienda.paga(9, 2.25);
    m_tienda.mueve(u"gastos"_s, 5);
    m_tienda.mueve(u"retiradas"_s, 6);
    m_tienda.mueve(u"caja_inicial"_s, 50);
    EXPECT_EQ(resumen(), (QStringList{u"Ingreso en Deposito:|20"_s, u"Ventas no Cobradas:|-4,5"_s, u"Gastos del Dia:|-5"_s,
                                      u"Cobros de deudas Pendientes:|2,25"_s, u"Caja Inicial:|50"_s, u"Retiradas del dia:|-6"_s}));
    EXPECT_EQ(m_tienda.filas(u"numerico10,numerico16,numerico18,numerico19"_s).constFirst(), u"0|5|2,25|54,5"_s)
        << "50 + 20 - 4.50 - 5 - 6";
}

TEST_F(FormasPagoCobrosTest, OverALongerPeriodThereIsNeitherOpeningCashNorWithdrawals)
{
    m_tienda.periodo(15, 16);
    m_tienda.mueve(u"retiradas"_s, 6);
    m_tienda.mueve(u"caja_inicial"_s, 50);
    m_tienda.mueve(u"gastos"_s, 5);
    EXPECT_EQ(resumen(), QStringList{u"Gastos del Dia:|-5"_s});
}

TEST_F(FormasPagoCobrosTest, APeriodWithoutAmountsLeavesBothTablesEmpty)
{
    m_tienda.tienda.ejecutaListados(
        {u"insert into informes (texto1) values ('vieja')"_s, u"insert into subinformes (texto1) values ('vieja')"_s});
    EXPECT_EQ(resumen(), QStringList{});
    EXPECT_EQ(m_tienda.filas(u"texto1"_s), QStringList{});
}

TEST_F(FormasPagoCobrosTest, ANegativeAmountIsNoLineOfTheBoxAndEntersTheBalance)
{
    m_tienda.vende({.numero = 7});
    m_tienda.mueve(u"gastos"_s, -5);
    EXPECT_EQ(resumen(), QStringList{});
    EXPECT_EQ(m_tienda.filas(u"numerico19,numerico16"_s), QStringList{u"5|-5"_s});
}

} // namespace
} // namespace kestrane
