#include "cash/listado_caja_diaria.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class CajaDiariaTotalesTest : public testing::Test
{
protected:
    QString totales()
    {
        ListadoCajaDiaria(m_tienda.listados);
        return m_tienda.filas(u"numerico13,numerico14,numerico9,numerico8,numerico17"_s).constFirst();
    }
    QStringList subinformes(const QString& columnas)
    {
        ListadoCajaDiaria(m_tienda.listados);
        return m_tienda.filas(columnas, u"subinformes"_s);
    }
    void observa(const QString& tienda, const QString& texto)
    {
        m_tienda.tienda.ejecuta(u"insert into observacioncaja (fecha, hora, empleado, observacion, tienda) values "
                                "(#03/15/2024#, '9:30:00', 2, '%1', '%2')"_s.arg(texto, tienda));
    }

    prueba::TiendaDeCaja m_tienda;
};

TEST_F(CajaDiariaTotalesTest, ServicesPacksAndSpaPacksAreOneSumAndProductsAnother)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (10, 4)"_s);
    m_tienda.vende({.numero = 7}, {{.tipo = u"'S'"_s, .precio = u"1"_s},
                                   {.tipo = u"'CB'"_s, .unidades = 2, .precio = u"2"_s},
                                   {.tipo = u"'B'"_s, .unidades = 10, .precio = u"4"_s},
                                   {.tipo = u"'F'"_s, .precio = u"8"_s},
                                   {.tipo = u"'BF'"_s, .precio = u"16"_s},
                                   {.tipo = u"'CBF'"_s, .precio = u"32"_s},
                                   {.tipo = u"'PSPA'"_s, .precio = u"64"_s},
                                   {.tipo = u"'P'"_s, .unidades = 3, .precio = u"128"_s}});
    EXPECT_EQ(totales(), u"127|128|12|4|1"_s) << "units: 1 service, 2 sessions, 1 bono";
}

TEST_F(CajaDiariaTotalesTest, ServicesOfPacksConsumptionsOfSpaPacksAndTheKindSPAddToNothing)
{
    m_tienda.vende({.numero = 7}, {{.tipo = u"'SF'"_s}, {.tipo = u"'CSF'"_s}, {.tipo = u"'CPSPA'"_s}, {.tipo = u"'SP'"_s}});
    EXPECT_EQ(totales(), u"0|0|0|0|1"_s);
}

TEST_F(CajaDiariaTotalesTest, MoneyPaidIntoADepositHasItsRowAndIsNoService)
{
    m_tienda.vende({.numero = 7}, {{.codigo = 2, .producto = u"Deposito"_s}, {.codigo = 2, .tipo = u"'CB'"_s, .precio = u"5"_s}});
    EXPECT_EQ(totales(), u"5|0|0|1|1"_s) << "the consumption of a bono of that code is spared nothing";
    EXPECT_EQ(m_tienda.filas(u"texto22,texto3,numerico2,numerico3"_s).constFirst(), u"2|1 X Deposito|10|2,1"_s);
}

TEST_F(CajaDiariaTotalesTest, FromDepositASaleCountsInUnitsCostAndTicketsAlone)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (10, 4)"_s);
    m_tienda.vende({.numero = 7, .pago = u"4"_s}, {{}, {.tipo = u"'P'"_s}, {.tipo = u"'F'"_s}, {.tipo = u"'PSPA'"_s}});
    EXPECT_EQ(totales(), u"0|0|4|1|1"_s);
}

TEST_F(CajaDiariaTotalesTest, TheNameOfANullPaymentCodeIsAskedForInAStatementThatIsRefused)
{
    m_tienda.tienda.ejecuta(
        u"insert into cabecera_factura (numero, fechaventa, tienda, cliente) values (7, #03/15/2024#, 'Centro', 0)"_s);
    m_tienda.tienda.ejecuta(
        u"insert into detalle_factura (num_factura, codigo, tipo_venta, unidades, precio, tienda, NombreEmpleado)"
        " values (7, 1, 'S', 1, 9, 'Centro', 'Ana')"_s);
    EXPECT_EQ(m_tienda.error(ListadoCajaDiaria), ErrorEjecucion::SentenciaRechazada);
}

TEST_F(CajaDiariaTotalesTest, FractionsOfUnitsAreRoundedHalfToEvenAtEachLine)
{
    m_tienda.vende({.numero = 7}, {{.unidades = 0.5}, {.unidades = 1.5}, {.unidades = 0.5}});
    EXPECT_EQ(totales(), u"36,3|0|0|2|1"_s) << "0, then 1.5 becomes 2, then 2.5 becomes 2";
}

TEST_F(CajaDiariaTotalesTest, MoreUnitsThanASixteenBitCounterHoldsEndTheRun)
{
    m_tienda.vende({.numero = 7}, {{.unidades = 32767}});
    EXPECT_EQ(totales(), u"12,1|0|0|32767|1"_s);
    m_tienda.vende({.numero = 8}, {{.unidades = 1}});
    EXPECT_EQ(m_tienda.error(ListadoCajaDiaria), ErrorEjecucion::Desbordamiento);
    EXPECT_EQ(m_tienda.filas(u"numerico1,numerico8"_s), QStringList{u"7|nulo"_s}) << "the rows written so far stay";
}

TEST_F(CajaDiariaTotalesTest, RemarksReplaceWhatAnEarlierReportLeft)
{
    m_tienda.tienda.ejecutaListados(u"insert into subinformes (texto1) values ('vieja')"_s);
    observa(u"Centro"_s, u"Falta cambio"_s);
    EXPECT_EQ(subinformes(u"Fecha1,fecha2,texto1,texto2"_s), QStringList{u"15/03/2024|9:30:00|Luis P|Falta cambio"_s});
}

TEST_F(CajaDiariaTotalesTest, RemarksOfAStoreWhoseNameEndsInTheChosenOnesAreLeftOut)
{
    observa(u"Centro"_s, u"suya"_s);
    observa(u"Gran Centro"_s, u"de otra"_s);
    EXPECT_EQ(subinformes(u"texto2"_s), (QStringList{u"suya"_s, u"de otra"_s}));
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(subinformes(u"texto2"_s), QStringList{u"suya"_s});
}

class CajaDiariaValesTest : public CajaDiariaTotalesTest
{
protected:
    CajaDiariaValesTest() { m_tienda.contexto.TipoPrograma = u"TPV"_s; }
};

TEST_F(CajaDiariaValesTest, TheVouchersIssuedInThePeriodFollowTheRemarksWhateverTheirStore)
{
    m_tienda.contexto.TiendaSeleccionada = u"Sur"_s;
    observa(u"Sur"_s, u"Nota"_s);
    m_tienda.vende({.numero = 7, .cliente = 5, .empleado = 2});
    m_tienda.vale(7, 12.5);
    m_tienda.vende({.numero = 8, .cliente = 0});
    m_tienda.vale(8, 3, u"70"_s);
    EXPECT_EQ(subinformes(u"texto2,fecha3,texto10,texto11,texto12,texto14,numerico1,texto15"_s),
              (QStringList{u"Nota|nulo|nulo|nulo|nulo|nulo|nulo|nulo"_s, u"nulo|15/03/2024|7|Eva Ruiz|Abono venta = 7|2|12,5|"_s,
                           u"nulo|15/03/2024|8|Cliente Generico|Abono venta = 8|1|3|Venta = 70"_s}));
}

TEST_F(CajaDiariaValesTest, AVoucherOfAnotherDayOrOfNoSaleIsNotListed)
{
    m_tienda.vende({.numero = 7});
    m_tienda.tienda.ejecuta(u"insert into vales_descuento (desde, num_factura, descuento) values (#03/14/2024#, 7, 5)"_s);
    m_tienda.vale(99, 5);
    EXPECT_EQ(subinformes(u"texto10"_s), QStringList{});
}

TEST_F(CajaDiariaValesTest, TheProgressBarDoesNotGoOnWithVouchers)
{
    m_tienda.vende({.numero = 7});
    m_tienda.vale(7, 5);
    m_tienda.vale(7, 3);
    EXPECT_EQ(subinformes(u"numerico1"_s), (QStringList{u"5"_s, u"3"_s}));
    EXPECT_EQ(m_tienda.progreso.pasos, 1) << "the line sold";
}

TEST_F(CajaDiariaValesTest, ShopsThatAreNotRetailListNone)
{
    m_tienda.vende({.numero = 7});
    m_tienda.vale(7, 5);
    m_tienda.contexto.TipoPrograma = u"PELUQUERIA"_s;
    EXPECT_EQ(subinformes(u"texto10"_s), QStringList{});
}

TEST_F(CajaDiariaValesTest, AnApostropheInAClientsNameEndsTheRunWithTheDatabasesErrorAndKeepsTheRows)
{
    m_tienda.tienda.ejecuta(u"insert into clientes (codigo, nombre, apellidos) values (6, 'Sinéad', 'O''Brien')"_s);
    m_tienda.vende({.numero = 7, .cliente = 6});
    m_tienda.vale(7, 5);
    EXPECT_EQ(m_tienda.error(ListadoCajaDiaria), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(m_tienda.filas(u"texto2"_s), QStringList{u"Sinéad O'Brien"_s});
}

TEST_F(CajaDiariaValesTest, AVoucherWithoutAmountIsRefusedByTheNumberColumn)
{
    m_tienda.vende({.numero = 7});
    m_tienda.tienda.ejecuta(u"insert into vales_descuento (desde, num_factura) values (#03/15/2024#, 7)"_s);
    EXPECT_EQ(m_tienda.error(ListadoCajaDiaria), ErrorEjecucion::SentenciaRechazada);
}

} // namespace
} // namespace kestrane
