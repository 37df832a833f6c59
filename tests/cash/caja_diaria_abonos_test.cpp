#include "cash/listado_caja_diaria.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class CajaDiariaAbonosTest : public prueba::PruebaDeInforme<ListadoCajaDiaria>
{
protected:
    QString totales() { return filas(u"numerico13,numerico14,numerico9,numerico8,numerico17"_s).constFirst(); }
};

TEST_F(CajaDiariaAbonosTest, TheTaxIsAddedToWhatIsGivenBack)
{
    m_tienda.devuelve({.numero = 3, .cliente = 5, .pago = u"2"_s, .venta = 70},
                      {{.precio = u"12.1"_s, .impuesto = u"2"_s, .impuesto2 = u"0.5"_s, .empleado = u"'Ana Paz Gil'"_s}});
    EXPECT_EQ(
        filas(u"fecha3,numerico1,texto10,texto2,texto30,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
        QStringList{u"15/03/2024|3|3 / 70|Eva Ruiz|11A|Abono: Corte|Ana Paz Gil|Tarjeta|2|-14,6|-2,5|6|Devoluciones de venta"_s});
}

TEST_F(CajaDiariaAbonosTest, ASecondTaxThatIsNullCountsAsNone)
{
    m_tienda.devuelve({.venta = 70}, {{.impuesto2 = u"null"_s}});
    EXPECT_EQ(filas(u"numerico2,numerico3"_s), QStringList{u"-14,2|-2,1"_s});
}

TEST_F(CajaDiariaAbonosTest, OneWithoutTaxHasAPlainZero)
{
    m_tienda.devuelve({.venta = 70}, {{.impuesto = u"0"_s}});
    EXPECT_EQ(filas(u"numerico2,numerico3"_s), QStringList{u"-12,1|0"_s});
}

TEST_F(CajaDiariaAbonosTest, OnlyAServiceOfAPackHasATextOfItsOwn)
{
    m_tienda.devuelve({.venta = 70}, {{.tipo = u"'SF'"_s}, {.tipo = u"'CB'"_s}, {.tipo = u"'PSPA'"_s}, {.tipo = u"'SP'"_s}});
    EXPECT_EQ(filas(u"texto3,texto22"_s),
              (QStringList{u"Servicio de Pack: Corte|6"_s, u"Abono: Corte|6"_s, u"Abono: Corte|6"_s, u"Abono: Corte|6"_s}));
}

TEST_F(CajaDiariaAbonosTest, ASharedLineKeepsItsEmptyName)
{
    m_tienda.devuelve({.venta = 70}, {{.codigo = 33, .empleado = u"''"_s}});
    m_tienda.comparte(70, 33, u"S"_s, {1, 2});
    EXPECT_EQ(filas(u"texto7"_s), QStringList{u""_s});
}

TEST_F(CajaDiariaAbonosTest, TheyLowerTheTotalsWhateverTheyWerePaidWith)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (10, 4)"_s);
    m_tienda.devuelve({.pago = u"4"_s, .venta = 70}, {{.tipo = u"'S'"_s, .precio = u"10"_s},
                                                      {.tipo = u"'P'"_s, .unidades = 2, .precio = u"20"_s},
                                                      {.tipo = u"'F'"_s, .precio = u"30"_s},
                                                      {.tipo = u"'PSPA'"_s, .precio = u"40"_s}});
    EXPECT_EQ(totales(), u"-80|-20|-8|-1|0"_s);
}

TEST_F(CajaDiariaAbonosTest, PaidWithADepositTheyKeepTheirTextAndTheirAmounts)
{
    m_tienda.devuelve({.pago = u"4"_s, .venta = 70});
    EXPECT_EQ(filas(u"texto3,numerico2,numerico3"_s), QStringList{u"Abono: Corte|-14,2|-2,1"_s}) << "-(12.10 + 2.10)";
}

TEST_F(CajaDiariaAbonosTest, InRetailOneWhoseNumberOrSaleSpentAVoucherBearsNoMark)
{
    m_tienda.contexto.TipoPrograma = u"TPV"_s;
    m_tienda.devuelve({.numero = 3, .venta = 70});
    m_tienda.vale(98, 5, u"3"_s);
    m_tienda.vale(99, 5, u"70"_s);
    EXPECT_EQ(filas(u"texto10,texto3"_s), QStringList{u"3 / 70|Abono: Corte"_s});
}

TEST_F(CajaDiariaAbonosTest, TheReservedServiceIsNotSpared)
{
    m_tienda.devuelve({.venta = 70}, {{.codigo = 2}});
    EXPECT_EQ(totales(), u"-12,1|0|0|-1|0"_s);
}

TEST_F(CajaDiariaAbonosTest, ABonoOfTenSessionsAddsOneUnitAndItsReturnTakesItsUnitsOff)
{
    m_tienda.vende({.numero = 70}, {{.tipo = u"'B'"_s, .unidades = 10}});
    EXPECT_EQ(totales(), u"12,1|0|0|1|1"_s);
    m_tienda.devuelve({.venta = 70}, {{.tipo = u"'B'"_s, .unidades = 10}});
    EXPECT_EQ(totales(), u"0|0|0|-9|1"_s);
}

TEST_F(CajaDiariaAbonosTest, TheCostIsTheVariantsInShopsOfSizesAndColours)
{
    m_tienda.tienda.ejecuta({u"insert into productos (codigo, coste) values (10, 4)"_s,
                             u"insert into productostextil (codigopadre, codigohijo, coste) values (10, '7', 3)"_s});
    m_tienda.vende({.numero = 70}, {{.tipo = u"'P'"_s, .unidades = 2, .hijo = u"'7'"_s}, {.tipo = u"'P'"_s}});
    m_tienda.devuelve({.venta = 70}, {{.tipo = u"'P'"_s, .hijo = u"'7'"_s}});
    EXPECT_EQ(totales(), u"0|12,1|8|0|1"_s) << "2, 1 and -1 products of 4";
    m_tienda.contexto.TipoPrograma = u"ZAPATERIA"_s;
    EXPECT_EQ(totales(), u"0|12,1|7|0|1"_s) << "2 and -1 variants of 3, a product of 4";
}

TEST_F(CajaDiariaAbonosTest, InRetailAReturnThatLeftAVoucherHasNoRowAndLowersNothing)
{
    m_tienda.devuelve({.numero = 1, .venta = 70});
    m_tienda.devuelve({.numero = 2, .venta = 71});
    m_tienda.vale(70, 12.1);
    m_tienda.contexto.TipoPrograma = u"PERFUMERIA"_s;
    EXPECT_EQ(filas(u"texto10,numerico13"_s), QStringList{u"2 / 71|-12,1"_s});
    m_tienda.contexto.TipoPrograma = u"PELUQUERIA"_s;
    EXPECT_EQ(filas(u"texto10,numerico13"_s), (QStringList{u"1 / 70|-24,2"_s, u"2 / 71|-24,2"_s}));
}

TEST_F(CajaDiariaAbonosTest, TheyCountOnTheirOwnDayAndInTheirStore)
{
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    m_tienda.devuelve({.numero = 1, .dia = u"#03/14/2024#"_s, .venta = 70});
    m_tienda.devuelve({.numero = 2, .venta = 70}, {{.producto = u"Suya"_s}, {.producto = u"Ajena"_s, .tienda = u"'Sur'"_s}});
    m_tienda.devuelve({.numero = 3, .tienda = u"'Sur'"_s, .venta = 70});
    EXPECT_EQ(filas(u"texto3"_s), QStringList{u"Abono: Suya"_s});
}

} // namespace
} // namespace kestrane
