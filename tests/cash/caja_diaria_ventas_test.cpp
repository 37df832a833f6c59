#include "cash/listado_caja_diaria.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class CajaDiariaVentasTest : public prueba::PruebaDeInforme<ListadoCajaDiaria>
{
};

TEST_F(CajaDiariaVentasTest, ALineShowsItsSaleClientEmployeePaymentNetAndTax)
{
    m_tienda.vende({.numero = 7, .cliente = 5, .pago = u"2"_s},
                   {{.producto = u"Corte"_s, .unidades = 2, .precio = u"24.2"_s, .impuesto = u"3"_s, .impuesto2 = u"1.2"_s}});
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto2,texto30,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              QStringList{u"15/03/2024|7|7|Eva Ruiz|11A|2 X Corte|Ana Paz|Tarjeta|2|20|4,2|2|Ventas Generales"_s});
}

struct CasoDeClase
{
    QString tipo;
    QString fila;
};

TEST_F(CajaDiariaVentasTest, TheKindOfLineDecidesItsBlockAndItsText)
{
    m_tienda.tienda.ejecuta(u"insert into cabecera_bonos (numbono, num_factura, num_sesiones) values (1, 7, 10)"_s);
    const CasoDeClase casos[] = {
        {u"S"_s, u"2|Ventas Generales|3 X Masaje"_s},
        {u"P"_s, u"2|Ventas Generales|3 X Masaje"_s},
        {u"F"_s, u"2|Ventas Generales|3 X Masaje"_s},
        {u"CB"_s, u"2|Ventas Generales|3 X Cons.Bono: Masaje"_s},
        {u"CBF"_s, u"2|Ventas Generales|3 X Cons.Bono: Masaje"_s},
        {u"CPSPA"_s, u"2|Ventas Generales|3 X Cons.Pack Spa: Masaje"_s},
        {u"PSPA"_s, u"2|Ventas Generales|Pack Spa - Masaje"_s},
        {u"CSF"_s, u"2|Ventas Generales|Cons.Pack Servicios: Masaje"_s},
        {u"SF"_s, u"2|Ventas Generales|Servicio de Pack: Masaje"_s},
        {u"B"_s, u"3|Ventas de Bonos|10 de - Masaje"_s},
        {u"BF"_s, u"3|Ventas de Bonos|10 de - Masaje"_s},
        {u"SP"_s, u"nulo|nulo|3 X Masaje"_s},
        {u"s"_s, u"nulo|nulo|3 X Masaje"_s},
    };
    for (const CasoDeClase& caso : casos) {
        m_tienda.tienda.ejecuta({u"delete from cabecera_factura"_s, u"delete from detalle_factura"_s});
        m_tienda.vende({.numero = 7}, {{.tipo = u'\'' + caso.tipo + u'\'', .producto = u"Masaje"_s, .unidades = 3}});
        EXPECT_EQ(filas(u"texto22,texto21,texto3"_s), QStringList{caso.fila}) << caso.tipo.toStdString();
    }
}

TEST_F(CajaDiariaVentasTest, FromDepositAnyLineButAServiceOfAPackSaysSoAndNoneHasMoney)
{
    m_tienda.vende({.pago = u"4"_s}, {{.tipo = u"'CB'"_s}, {.tipo = u"'B'"_s}, {.tipo = u"'SF'"_s}});
    EXPECT_EQ(filas(u"texto22,texto3,numerico2,numerico3"_s),
              (QStringList{u"2|Cons.Deposito: Corte|0|0"_s, u"3|Cons.Deposito: Corte|0|0"_s, u"2|Servicio de Pack: Corte|0|0"_s}));
}

TEST_F(CajaDiariaVentasTest, InRetailEveryLineOfASaleThatSpentAVoucherIsMarkedAndKeepsItsAmount)
{
    m_tienda.contexto.TipoPrograma = u"TPV"_s;
    m_tienda.vende({.numero = 7}, {{.tipo = u"'P'"_s}, {.tipo = u"'SP'"_s}});
    m_tienda.vende({.numero = 8}, {{.tipo = u"'P'"_s}});
    m_tienda.vale(3, 5, u"7"_s);
    EXPECT_EQ(filas(u"texto3,numerico2"_s),
              (QStringList{u"1 X Corte + (Vale Descuento)|10"_s, u"1 X Corte + (Vale Descuento)|10"_s, u"1 X Corte|10"_s}));
    m_tienda.contexto.TipoPrograma = u"SPA"_s;
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"1 X Corte"_s, u"1 X Corte"_s, u"1 X Corte"_s}));
}

TEST_F(CajaDiariaVentasTest, AnEmployeesNameIsCutToTwoWordsAndASharedLineNamesAll)
{
    m_tienda.vende({.numero = 7},
                   {{.empleado = u"'Ana Paz Gil'"_s}, {.empleado = u"'Ana'"_s}, {.codigo = 33, .empleado = u"''"_s}});
    m_tienda.comparte(7, 33, u"S"_s, {2, 1});
    EXPECT_EQ(filas(u"texto7,numerico2"_s), (QStringList{u"Ana Paz|10"_s, u"Ana|10"_s, u"ompartida,Ana P,Luis P|10"_s}));
}

TEST_F(CajaDiariaVentasTest, AGenericClientShowsTheTaxNumberOfTheClientBefore)
{
    m_tienda.vende({.numero = 1});
    m_tienda.vende({.numero = 2, .cliente = 5});
    m_tienda.vende({.numero = 3});
    m_tienda.paga(44, 6); // a debt of which nothing is known: of client 0
    EXPECT_EQ(filas(u"texto2,texto30"_s),
              (QStringList{u"Cliente Generico|"_s, u"Eva Ruiz|11A"_s, u"Cliente Generico|11A"_s, u"Cliente Generico|11A"_s}));
    EXPECT_EQ(filas(u"texto30"_s).constFirst(), u""_s) << "the next report begins without one";
}

TEST_F(CajaDiariaVentasTest, AnUnpaidSaleHasARowBehindItsLinesThatTakesTheDebtOff)
{
    m_tienda.vende({.numero = 7, .cliente = 5, .empleado = 2, .pago = u"2"_s, .total = 12.1});
    m_tienda.debe(1, 7, 4.5);
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto2,texto30,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              (QStringList{u"15/03/2024|7|7|Eva Ruiz|11A|1 X Corte|Ana Paz|Tarjeta|2|10|2,1|2|Ventas Generales"_s,
                           u"15/03/2024|7|7|Eva Ruiz|11A|Venta no Cobrada|2|Tarjeta|2|-4,5|0|5|Ventas no Cobradas"_s}));
    EXPECT_EQ(m_tienda.filas(u"numerico13"_s), QStringList(2, u"12,1"_s)) << "the sale stays whole in the totals";
}

TEST_F(CajaDiariaVentasTest, ASaleWithoutLinesCountsAsATicketAndShowsItsDebtAlone)
{
    m_tienda.vende({.numero = 7}, {});
    m_tienda.vende({.numero = 8}, {});
    m_tienda.debe(1, 8, 3);
    EXPECT_EQ(filas(u"texto3,numerico1,numerico17"_s), QStringList{u"Venta no Cobrada|8|2"_s});
}

TEST_F(CajaDiariaVentasTest, SalesAndLinesOfTheStoreAloneAreRead)
{
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    m_tienda.vende({.numero = 9}, {{.producto = u"Suya"_s}, {.producto = u"Ajena"_s, .tienda = u"'Sur'"_s}});
    m_tienda.vende({.numero = 3, .tienda = u"'Gran Centro'"_s}, {{.producto = u"De otra"_s, .tienda = u"'Gran Centro'"_s}});
    m_tienda.vende({.numero = 4, .tienda = u"'Centro Sur'"_s});
    m_tienda.vende({.numero = 5, .tienda = u"null"_s});
    EXPECT_EQ(filas(u"numerico1,texto3,numerico17"_s), (QStringList{u"3|1 X De otra|2"_s, u"9|1 X Suya|2"_s}));
}

TEST_F(CajaDiariaVentasTest, AFieldThatIsNullLeavesItsColumnNull)
{
    m_tienda.vende({.pago = u"1"_s}, {{.tipo = u"null"_s, .impuesto2 = u"null"_s}});
    EXPECT_EQ(filas(u"texto22,texto3,numerico2,numerico3"_s), QStringList{u"nulo|1 X Corte|nulo|nulo"_s});
}

class CajaDiariaRegularizadasTest : public CajaDiariaVentasTest
{
protected:
    CajaDiariaRegularizadasTest() { m_tienda.contexto.CajaCompleta = true; }
};

TEST_F(CajaDiariaRegularizadasTest, TheyAreReadOnlyForTheCompleteCash)
{
    m_tienda.anula({.numero = 7});
    EXPECT_EQ(filas(u"texto22,texto21,numerico17,numerico13"_s), QStringList{u"9|Ventas Regularizadas|1|12,1"_s});
    m_tienda.contexto.CajaCompleta = false;
    EXPECT_EQ(filas(u"texto22"_s), QStringList{});
}

TEST_F(CajaDiariaRegularizadasTest, ARowCountsWhenItsNumberIsZeroOrLessOrItIsMarked)
{
    m_tienda.anula({.numero = 7, .borrar = 0});
    m_tienda.anula({.numero = 8, .borrar = -1});
    m_tienda.anula({.numero = -2, .borrar = 0});
    m_tienda.anula({.numero = 0, .borrar = 0});
    EXPECT_EQ(filas(u"numerico1"_s), (QStringList{u"-2"_s, u"0"_s, u"8"_s}));
}

TEST_F(CajaDiariaRegularizadasTest, TheDayOfTheAnnulmentCountsTooAndShowsOnlyWithoutADayOfSale)
{
    m_tienda.anula({.numero = 1, .dia = u"#02/01/2024#"_s, .anulada = u"#03/15/2024#"_s});
    m_tienda.anula({.numero = 2, .dia = u"null"_s, .anulada = u"#03/15/2024#"_s});
    m_tienda.anula({.numero = 3, .anulada = u"#05/01/2024#"_s});
    m_tienda.anula({.numero = 4, .dia = u"#02/01/2024#"_s, .anulada = u"#05/01/2024#"_s});
    EXPECT_EQ(filas(u"numerico1,fecha3"_s), (QStringList{u"1|01/02/2024"_s, u"2|15/03/2024"_s, u"3|15/03/2024"_s}));
}

TEST_F(CajaDiariaRegularizadasTest, TheirTextIsNotRelabelledTheirBlockIsTheirsAndDepositKeepsTheAmounts)
{
    m_tienda.anula({.numero = 7, .pago = u"4"_s},
                   {{.tipo = u"'CB'"_s}, {.tipo = u"'B'"_s, .unidades = 10}, {.tipo = u"'SP'"_s}, {.tipo = u"null"_s}});
    EXPECT_EQ(filas(u"texto3,numerico2,numerico3,texto22"_s),
              (QStringList{u"1 X Corte|10|2,1|9"_s, u"10 X Corte|10|2,1|9"_s, u"1 X Corte|10|2,1|9"_s, u"1 X Corte|10|2,1|9"_s}));
    EXPECT_EQ(m_tienda.filas(u"numerico13,numerico8"_s).constFirst(), u"0|2"_s) << "paid from deposit; a bono is one unit";
}

TEST_F(CajaDiariaRegularizadasTest, TheReservedServiceIsSparedAsInSales)
{
    m_tienda.anula({.numero = 7}, {{.codigo = 2}, {.codigo = 2, .tipo = u"'B'"_s}});
    EXPECT_EQ(filas(u"numerico13,numerico8"_s).constFirst(), u"12,1|1"_s);
}

TEST_F(CajaDiariaRegularizadasTest, TheEmployeesNameStaysWholeAndASharedLineWithoutKindIsLookedUpAsAService)
{
    m_tienda.anula(
        {.numero = 7},
        {{.empleado = u"'Ana Paz Gil'"_s}, {.codigo = 33, .tipo = u"null"_s, .empleado = u"''"_s}, {.empleado = u"null"_s}});
    m_tienda.comparte(7, 33, u"S"_s, {2});
    EXPECT_EQ(filas(u"texto7"_s), (QStringList{u"Ana Paz Gil"_s, u"ompartida,Luis P"_s, u"nulo"_s}));
}

TEST_F(CajaDiariaRegularizadasTest, TheirLinesAreThoseOfTheStoreOnlyWithAStoreChosenInAChain)
{
    m_tienda.anula({.numero = 7}, {{.producto = u"Suya"_s}, {.producto = u"Ajena"_s, .tienda = u"'Sur'"_s}});
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"1 X Suya"_s, u"1 X Ajena"_s}));
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"1 X Suya"_s, u"1 X Ajena"_s})) << "no chain";
    m_tienda.contexto.MultiTienda = true;
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"1 X Suya"_s});
}

TEST_F(CajaDiariaRegularizadasTest, AChainWithoutAStoreChosenShowsTheirLinesOfNoStoreToo)
{
    m_tienda.contexto.MultiTienda = true;
    m_tienda.anula({.numero = 7}, {{}, {.producto = u"De nadie"_s, .tienda = u"null"_s}});
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"1 X Corte"_s, u"1 X De nadie"_s}));
}

TEST_F(CajaDiariaRegularizadasTest, AnUnpaidOneHasItsRowWithItsOwnDayOfSale)
{
    m_tienda.anula({.numero = 7, .dia = u"null"_s, .anulada = u"#03/15/2024#"_s});
    m_tienda.debe(1, 7, 4.5);
    EXPECT_EQ(filas(u"texto3,fecha3,texto22"_s), (QStringList{u"1 X Corte|15/03/2024|9"_s, u"Venta no Cobrada|nulo|5"_s}));
}

TEST_F(CajaDiariaRegularizadasTest, TheyCarryNoVoucherMark)
{
    m_tienda.contexto.TipoPrograma = u"TPV"_s;
    m_tienda.anula({.numero = 7});
    m_tienda.vale(3, 5, u"7"_s);
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"1 X Corte"_s});
}

} // namespace
} // namespace kestrane
