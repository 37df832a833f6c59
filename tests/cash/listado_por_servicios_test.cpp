#include "cash/listado_por_servicios.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class ListadoPorServiciosTest : public prueba::PruebaDeInforme<ListadoPorServicios>
{
protected:
    /// Services, units and tickets.
    QString totales() { return filas(u"numerico13,numerico8,numerico17"_s).constFirst(); }
};

TEST_F(ListadoPorServiciosTest, ALineShowsItsSaleCodeUnitPriceUnitsNetAndTax)
{
    m_tienda.vende({.numero = 7, .cliente = 5, .pago = u"2"_s},
                   {{.codigo = 31, .unidades = 2, .empleado = u"'Ana Paz Gil'"_s, .unitario = 6.05}});
    EXPECT_EQ(
        filas(u"fecha3,numerico1,texto10,texto2,numerico11,texto24,numerico5,texto3,texto7,texto4,texto23,numerico2,numerico3"_s),
        QStringList{u"15/03/2024|7|7|Eva Ruiz|6,05|31|2|Corte|Ana Paz Gil|Tarjeta|2|10|2,1"_s});
    EXPECT_EQ(m_tienda.filas(u"texto22,texto21,texto33,texto30,numerico14,numerico9"_s),
              QStringList{u"2|Ventas Generales|nulo|nulo|nulo|0"_s});
}

TEST_F(ListadoPorServiciosTest, AServiceWithoutADescriptionHasNoText)
{
    m_tienda.vende({.numero = 7});
    m_tienda.tienda.ejecuta(u"update detalle_factura set producto = null"_s);
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"nulo"_s});
}

TEST_F(ListadoPorServiciosTest, TheTaxNumberIsNotJoinedToTheStore)
{
    m_tienda.contexto.MultiTienda = true;
    m_tienda.vende({.numero = 7});
    EXPECT_EQ(filas(u"texto33"_s), QStringList{u"Tienda = "_s});
}

TEST_F(ListadoPorServiciosTest, OnlyServicesBonosAndTheirConsumptionsAreListed)
{
    m_tienda.tienda.ejecuta(u"insert into cabecera_bonos (numbono, num_factura, num_sesiones) values (1, 7, 10)"_s);
    m_tienda.vende({.numero = 7}, {{}, {.tipo = u"'CB'"_s}, {.tipo = u"'B'"_s}, {.tipo = u"'P'"_s}, {.tipo = u"'F'"_s}});
    EXPECT_EQ(filas(u"texto22,texto21,texto3"_s),
              (QStringList{u"2|Ventas Generales|Corte"_s, u"2|Ventas Generales|Cons.Bono: Corte"_s,
                           u"3|Ventas de Bonos|10 de - Corte"_s}));
}

TEST_F(ListadoPorServiciosTest, CodeTwoOfAnyKindIsNeitherListedNorCounted)
{
    m_tienda.vende({.numero = 7}, {{.codigo = 2}, {.codigo = 2, .tipo = u"'B'"_s}, {}});
    EXPECT_EQ(totales(), u"12,1|1|1"_s);
}

TEST_F(ListadoPorServiciosTest, ALineWhoseKindIsWrittenSmallIsFoundAndCountsWithoutABlock)
{
    m_tienda.vende({.numero = 7}, {{.tipo = u"'s'"_s, .unidades = 2}, {.tipo = u"'b'"_s, .unidades = 10}});
    m_tienda.devuelve({.venta = 70}, {{.tipo = u"'s'"_s, .unidades = 3, .precio = u"4"_s}});
    EXPECT_EQ(totales(), u"20,2|9|1"_s) << "12.10 twice less 4, units 2 and 10 less 3";
    EXPECT_EQ(m_tienda.filas(u"texto22"_s), (QStringList{u"nulo"_s, u"nulo"_s, u"6"_s}));
}

TEST_F(ListadoPorServiciosTest, ATicketWithProductsAloneCountsAndHasNoRow)
{
    m_tienda.vende({.numero = 7}, {{.tipo = u"'P'"_s}});
    m_tienda.vende({.numero = 8});
    EXPECT_EQ(filas(u"numerico1,numerico17"_s), QStringList{u"8|2"_s});
}

TEST_F(ListadoPorServiciosTest, FromDepositALineHasNoMoneyAndCountsInUnits)
{
    m_tienda.vende({.numero = 7, .pago = u"4"_s}, {{.unidades = 3}, {.tipo = u"'B'"_s, .unidades = 10}});
    EXPECT_EQ(totales(), u"0|4|1"_s);
    EXPECT_EQ(m_tienda.filas(u"texto3,numerico2,numerico3,texto22"_s),
              (QStringList{u"Cons.Deposito: Corte|0|0|2"_s, u"Cons.Deposito: Corte|0|0|3"_s}));
}

TEST_F(ListadoPorServiciosTest, ASharedLineShowsNoEmployee)
{
    m_tienda.vende({.numero = 7}, {{.empleado = u"''"_s}});
    m_tienda.comparte(7, 10, u"S"_s, {1});
    EXPECT_EQ(filas(u"texto7"_s), QStringList{u""_s});
}

TEST_F(ListadoPorServiciosTest, AnUnpaidSaleHasNoRowOfItsOwn)
{
    m_tienda.vende({.numero = 7});
    m_tienda.debe(1, 7, 4);
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"Corte"_s});
}

TEST_F(ListadoPorServiciosTest, AnnulledLinesKeepTheirTextInABlockOfTheirOwn)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.tienda.ejecuta(u"insert into cabecera_bonos (numbono, num_factura, num_sesiones) values (1, 7, 10)"_s);
    m_tienda.anula({.numero = 7}, {{.tipo = u"'B'"_s, .unidades = 5}, {.codigo = 2}});
    m_tienda.anula({.numero = 9, .dia = u"#02/01/2024#"_s, .anulada = u"#03/15/2024#"_s});
    m_tienda.anula({.numero = 10, .borrar = 0});
    EXPECT_EQ(filas(u"numerico1,texto3,texto22,texto21,numerico8,numerico17"_s),
              QStringList{u"7|10 de - Corte|9|Ventas Regularizadas|1|1"_s})
        << "the day of the annulment does not count here";
    m_tienda.contexto.CajaCompleta = false;
    EXPECT_EQ(filas(u"numerico1"_s), QStringList{});
}

TEST_F(ListadoPorServiciosTest, AnnulledLinesAreThoseOfTheStoreOnlyWithAStoreChosenInAChain)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    m_tienda.anula({.numero = 7}, {{}, {.producto = u"Ajena"_s, .tienda = u"'Sur'"_s}});
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"Corte"_s, u"Ajena"_s}));
    m_tienda.contexto.MultiTienda = true;
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"Corte"_s});
}

TEST_F(ListadoPorServiciosTest, AChainWithoutAStoreChosenShowsAnnulledLinesOfNoStoreToo)
{
    m_tienda.contexto.CajaCompleta = m_tienda.contexto.MultiTienda = true;
    m_tienda.anula({.numero = 7}, {{}, {.producto = u"De nadie"_s, .tienda = u"null"_s}});
    EXPECT_EQ(filas(u"texto3"_s), (QStringList{u"Corte"_s, u"De nadie"_s}));
}

TEST_F(ListadoPorServiciosTest, AnAnnulledLineFromDepositHasNoMoney)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.anula({.numero = 7, .pago = u"4"_s});
    EXPECT_EQ(filas(u"texto3,numerico2,numerico3,texto22"_s), QStringList{u"Cons.Deposito: Corte|0|0|9"_s});
}

TEST_F(ListadoPorServiciosTest, AnAnnulledConsumptionOfABonoSaysSo)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.anula({.numero = 7}, {{.tipo = u"'CB'"_s}});
    EXPECT_EQ(filas(u"texto3,texto22"_s), QStringList{u"Cons.Bono: Corte|9"_s});
}

TEST_F(ListadoPorServiciosTest, AReturnTurnsTheSignOfItsSale)
{
    m_tienda.devuelve({.numero = 3, .cliente = 5, .venta = 70},
                      {{.codigo = 31, .unidades = 2, .impuesto2 = u"null"_s, .unitario = 6.05}});
    EXPECT_EQ(filas(u"numerico1,texto10,texto2,numerico11,texto24,numerico5,texto3,texto7,numerico2,numerico3,texto22,texto21"_s),
              QStringList{u"3|3 / 70|Eva Ruiz|6,05|31|-2|Abono: Corte|Ana Paz|-10|-2,1|6|Devoluciones de venta"_s});
    EXPECT_EQ(totales(), u"-12,1|-2|0"_s);
}

TEST_F(ListadoPorServiciosTest, AReturnWithoutTaxHasAPlainZero)
{
    m_tienda.devuelve({.venta = 70}, {{.impuesto = u"0"_s}});
    EXPECT_EQ(filas(u"numerico2,numerico3"_s), QStringList{u"-12,1|0"_s});
}

TEST_F(ListadoPorServiciosTest, AReturnOfTheReservedServiceLowersTheTotalsThatItsSaleNeverRaised)
{
    m_tienda.vende({.numero = 70}, {{.codigo = 2}});
    m_tienda.devuelve({.venta = 70}, {{.codigo = 2}, {.tipo = u"'P'"_s}});
    EXPECT_EQ(totales(), u"-12,1|-1|1"_s);
}

TEST_F(ListadoPorServiciosTest, ABonoAddsOneUnitAndItsReturnTakesItsUnitsOff)
{
    m_tienda.vende({.numero = 70}, {{.tipo = u"'B'"_s, .unidades = 1}});
    m_tienda.devuelve({.venta = 70}, {{.tipo = u"'B'"_s, .unidades = 1}});
    EXPECT_EQ(totales(), u"0|0|1"_s);
}

TEST_F(ListadoPorServiciosTest, AReturnedBonoTakesAsManyUnitsAsItSays)
{
    m_tienda.devuelve({.venta = 70}, {{.tipo = u"'B'"_s, .unidades = 10}});
    EXPECT_EQ(totales(), u"-12,1|-10|0"_s);
}

TEST_F(ListadoPorServiciosTest, InRetailAReturnThatLeftAVoucherIsListedToo)
{
    m_tienda.contexto.TipoPrograma = u"TPV"_s;
    m_tienda.devuelve({.venta = 70});
    m_tienda.vale(70, 5);
    m_tienda.vende({.numero = 70, .dia = u"#01/01/2024#"_s});
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"Abono: Corte"_s});
    EXPECT_EQ(m_tienda.filas(u"texto10"_s, u"subinformes"_s), QStringList{}) << "nor are vouchers listed";
}

TEST_F(ListadoPorServiciosTest, CashMovementsAreSummedAndNotListed)
{
    m_tienda.vende({.numero = 7});
    m_tienda.mueve(u"caja_inicial"_s, 50);
    m_tienda.mueve(u"gastos"_s, 5);
    m_tienda.mueve(u"retiradas"_s, 6);
    m_tienda.paga(1, 8);
    EXPECT_EQ(filas(u"texto3,numerico10,numerico16,numerico18"_s), QStringList{u"Corte|50|5|8"_s});
    m_tienda.periodo(15, 16);
    EXPECT_EQ(filas(u"numerico10,numerico16,numerico18"_s), QStringList{u"0|5|8"_s});
}

TEST_F(ListadoPorServiciosTest, RemarksOfStoresWhoseNameEndsInTheChosenOnesAreShownToo)
{
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    m_tienda.tienda.ejecuta(u"insert into observacioncaja (fecha, empleado, observacion, tienda) values (#03/15/2024#, 1, 'Nota', "
                            "'Gran Centro')"_s);
    ListadoPorServicios(m_tienda.listados);
    EXPECT_EQ(m_tienda.filas(u"Fecha1,texto1,texto2"_s, u"subinformes"_s), QStringList{u"15/03/2024|Ana P|Nota"_s});
}

TEST_F(ListadoPorServiciosTest, TheProgressBarGoesOnWithEachLineExpenseAndRemark)
{
    m_tienda.vende({.numero = 7}, {{}, {}});
    m_tienda.devuelve({.venta = 70});
    m_tienda.mueve(u"gastos"_s, 5);
    m_tienda.mueve(u"retiradas"_s, 6);
    m_tienda.paga(1, 8);
    m_tienda.tienda.ejecuta(u"insert into observacioncaja (fecha, empleado, tienda) values (#03/15/2024#, 1, 'Centro')"_s);
    ListadoPorServicios(m_tienda.listados);
    EXPECT_EQ(m_tienda.progreso.pasos, 2 + 1 + 1 + 1);
}

TEST_F(ListadoPorServiciosTest, NoOtherColumnIsWritten)
{
    m_tienda.vende({.numero = 7});
    ListadoPorServicios(m_tienda.listados);
    EXPECT_EQ(m_tienda.escritas(0),
              (QStringList{u"texto2"_s,     u"texto3"_s,     u"texto4"_s,     u"texto7"_s,     u"texto10"_s,    u"texto21"_s,
                           u"texto22"_s,    u"texto23"_s,    u"texto24"_s,    u"texto34"_s,    u"texto35"_s,    u"numerico1"_s,
                           u"numerico2"_s,  u"numerico3"_s,  u"numerico5"_s,  u"numerico8"_s,  u"numerico9"_s,  u"numerico10"_s,
                           u"numerico11"_s, u"numerico13"_s, u"numerico16"_s, u"numerico17"_s, u"numerico18"_s, u"fecha1"_s,
                           u"fecha2"_s,     u"fecha3"_s}));
}

} // namespace
} // namespace kestrane
