#include "cash/formas_pago_ventas.h"

#include "cash/listado_formas_pago_ventas.h"
#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FormasPagoVentasTest : public prueba::PruebaDeInforme<ListadoFormasPagoVentas>
{
};

TEST_F(FormasPagoVentasTest, ALineShowsItsSaleClientPaymentNetAndTax)
{
    m_tienda.vende({.numero = 7, .cliente = 5, .pago = u"2"_s}, {{.unidades = 3, .empleado = u"'Ana Paz Gil'"_s}});
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto32,texto2,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              QStringList{u"15/03/2024|7|7|7|Eva Ruiz|Corte|Ana Paz Gil|Tarjeta|2|10|2,1|2|Ventas Generales"_s});
}

TEST_F(FormasPagoVentasTest, TheKindOfLineDecidesItsBlockAndItsText)
{
    m_tienda.tienda.ejecuta(u"insert into cabecera_bonos (numbono, num_factura, num_sesiones) values (1, 7, 10)"_s);
    m_tienda.vende({.numero = 7}, {{.tipo = u"'P'"_s},
                                   {.tipo = u"'F'"_s},
                                   {.tipo = u"'S'"_s},
                                   {.tipo = u"'SP'"_s},
                                   {.tipo = u"'CB'"_s},
                                   {.tipo = u"'CBF'"_s},
                                   {.tipo = u"'B'"_s},
                                   {.tipo = u"'BF'"_s},
                                   {.tipo = u"'PSPA'"_s},
                                   {.tipo = u"'CPSPA'"_s},
                                   {.tipo = u"'SF'"_s},
                                   {.tipo = u"'CSF'"_s}});
    EXPECT_EQ(filas(u"texto22,texto3"_s),
              (QStringList{u"2|Corte"_s, u"2|Corte"_s, u"2|Corte"_s, u"2|Corte"_s, u"2|Cons.Bono: Corte"_s, u"2|Cons.Bono: Corte"_s,
                           u"3|10 de - Corte"_s, u"3|10 de - Corte"_s, u"nulo|Corte"_s, u"nulo|Corte"_s, u"nulo|Corte"_s,
                           u"nulo|Corte"_s}));
}

TEST_F(FormasPagoVentasTest, ALineWithoutADescriptionHasNoTextButWhatItsKindPutsBefore)
{
    m_tienda.vende({.numero = 7}, {{}, {.tipo = u"'P'"_s}, {.tipo = u"'PSPA'"_s}, {.tipo = u"'CB'"_s}});
    m_tienda.tienda.ejecuta(u"update detalle_factura set producto = null"_s);
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"nulo"_s, u"nulo"_s, u"nulo"_s, u"Cons.Bono: "_s}));
}

TEST_F(FormasPagoVentasTest, TheSpaPackOfThisReportIsTheKindSP)
{
    m_tienda.vende({.numero = 7}, {{.tipo = u"'SP'"_s, .precio = u"1"_s},
                                   {.tipo = u"'PSPA'"_s, .precio = u"2"_s},
                                   {.tipo = u"'CPSPA'"_s, .precio = u"4"_s},
                                   {.tipo = u"'S'"_s, .precio = u"8"_s},
                                   {.tipo = u"'BF'"_s, .precio = u"16"_s},
                                   {.tipo = u"'P'"_s, .precio = u"32"_s}});
    EXPECT_EQ(filas(u"numerico13,numerico14,numerico8,numerico17"_s).constFirst(), u"25|32|1|1"_s);
}

TEST_F(FormasPagoVentasTest, MoneyPaidIntoADepositHasNoRowAndGoesToTheSummaryBox)
{
    m_tienda.vende({.numero = 7}, {{.codigo = 2}});
    m_tienda.vende({.numero = 8});
    EXPECT_EQ(filas(u"numerico1,numerico13,numerico17"_s), QStringList{u"8|12,1|2"_s});
    EXPECT_EQ(m_tienda.filas(u"texto1,numerico1"_s, u"subinformes"_s), QStringList{u"Ingreso en Deposito:|12,1"_s});
    EXPECT_EQ(m_tienda.progreso.pasos, 2) << "the line without a row too";
}

TEST_F(FormasPagoVentasTest, LinesOfAnUnpaidSaleStandInAGroupOfTheirOwnWithTheirAmounts)
{
    m_tienda.vende({.numero = 7, .pago = u"1"_s});
    m_tienda.debe(1, 7, 4.5);
    EXPECT_EQ(filas(u"texto4,texto23,numerico2,numerico19"_s), QStringList{u"Venta no cobrada|1 - Deuda|10|-4,5"_s});
}

TEST_F(FormasPagoVentasTest, FromDepositALineHasNoMoneyAndCountsInUnits)
{
    m_tienda.vende({.numero = 7, .pago = u"4"_s}, {{}, {.tipo = u"'F'"_s}, {.tipo = u"'SP'"_s}, {.tipo = u"'P'"_s}});
    EXPECT_EQ(filas(u"texto3,numerico2,numerico3,numerico13,numerico14,numerico8"_s),
              QStringList(4, u"Cons.Deposito: Corte|0|0|0|0|1"_s));
}

TEST_F(FormasPagoVentasTest, ASplitSaleHasItsMoneyInTwoRowsAndNoneInItsLines)
{
    m_tienda.vende({.numero = 7, .cliente = 5, .empleado = 2, .pago = u"3"_s, .efectivo = 5, .tarjeta = 7.1});
    const QString comun = u"15/03/2024|7|7|7|Eva Ruiz|"_s;
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto32,texto2,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              (QStringList{comun + u"Corte|Ana Paz|Partido|3|0|0|2|Ventas Generales"_s,
                           comun + u"Pagado al Contado Factura: 7|2|Contado|1|5|0|2|Ventas Generales"_s,
                           comun + u"Pagado en Tarjeta Factura: 7|2|Tarjeta|2|7,1|0|2|Ventas Generales"_s}));
    EXPECT_EQ(m_tienda.filas(u"numerico13"_s).constFirst(), u"12,1"_s) << "it counts whole";
}

TEST_F(FormasPagoVentasTest, ASplitSaleWithoutListedLinesHasItsTwoRowsAllTheSame)
{
    m_tienda.vende({.numero = 7, .pago = u"3"_s, .efectivo = 5, .tarjeta = 7}, {{.codigo = 2}});
    EXPECT_EQ(filas(u"texto23,numerico2"_s), (QStringList{u"1|5"_s, u"2|7"_s}));
}

TEST_F(FormasPagoVentasTest, ASplitSaleLeftUnpaidIsInTheDebtsGroupWithoutMoneyAndHasItsTwoRows)
{
    m_tienda.vende({.numero = 7, .pago = u"3"_s, .efectivo = 5, .tarjeta = 7});
    m_tienda.debe(1, 7, 2);
    EXPECT_EQ(filas(u"texto23,texto4,numerico2"_s),
              (QStringList{u"3 - Deuda|Venta no cobrada|0"_s, u"1|Contado|5"_s, u"2|Tarjeta|7"_s}));
}

TEST_F(FormasPagoVentasTest, AnnulledSalesFollowTheRulesOfSalesInABlockOfTheirOwn)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.anula({.numero = 7, .pago = u"3"_s, .efectivo = 5, .tarjeta = 7}, {{.tipo = u"'CB'"_s}, {.codigo = 2}});
    m_tienda.anula({.numero = 9, .borrar = 0});
    EXPECT_EQ(filas(u"texto3,numerico2,texto22,texto21,numerico17,numerico19"_s),
              (QStringList{u"Cons.Bono: Corte|0|9|Ventas Regularizadas|1|12,1"_s,
                           u"Pagado al Contado Factura: 7|5|9|Ventas Regularizadas|1|12,1"_s,
                           u"Pagado en Tarjeta Factura: 7|7|9|Ventas Regularizadas|1|12,1"_s}));
    m_tienda.contexto.CajaCompleta = false;
    EXPECT_EQ(filas(u"texto3"_s), QStringList{});
}

TEST_F(FormasPagoVentasTest, AnnulledLinesAreThoseOfTheStoreOnlyWithAStoreChosenInAChain)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    m_tienda.anula({.numero = 7}, {{}, {.producto = u"Ajena"_s, .tienda = u"'Sur'"_s}});
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"Corte"_s, u"Ajena"_s}));
    m_tienda.contexto.MultiTienda = true;
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"Corte"_s});
}

TEST_F(FormasPagoVentasTest, AChainWithoutAStoreChosenShowsAnnulledLinesOfNoStoreToo)
{
    m_tienda.contexto.CajaCompleta = m_tienda.contexto.MultiTienda = true;
    m_tienda.anula({.numero = 7}, {{}, {.producto = u"De nadie"_s, .tienda = u"null"_s}});
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"Corte"_s, u"De nadie"_s}));
}

TEST_F(FormasPagoVentasTest, AnAnnulledSaleLeftUnpaidIsInTheDebtsGroupAndIsNoDebtOfThePeriod)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.anula({.numero = 7});
    m_tienda.debe(1, 7, 4.5);
    EXPECT_EQ(filas(u"texto4,texto23,numerico2,texto22,numerico19"_s), QStringList{u"Venta no cobrada|1 - Deuda|10|9|0"_s});
    EXPECT_EQ(m_tienda.filas(u"texto1"_s, u"subinformes"_s), QStringList{});
}

TEST_F(FormasPagoVentasTest, AnAnnulledSaleFromDepositHasNoMoneyAndCountsInUnits)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.anula({.numero = 7, .pago = u"4"_s});
    EXPECT_EQ(filas(u"texto3,numerico2,numerico3,texto22,numerico13,numerico8"_s),
              QStringList{u"Cons.Deposito: Corte|0|0|9|0|1"_s});
}

} // namespace
} // namespace kestrane
