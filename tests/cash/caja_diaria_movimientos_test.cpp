#include "cash/listado_caja_diaria.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

const QString Todas = u"fecha3,numerico1,texto10,texto2,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21,texto30"_s;

class CajaDiariaMovimientosTest : public prueba::PruebaDeInforme<ListadoCajaDiaria>
{
};

TEST_F(CajaDiariaMovimientosTest, TheFirstOpeningCashOfTheDayHasARowDatedToday)
{
    m_tienda.periodo(14, 14);
    m_tienda.mueve(u"caja_inicial"_s, 100.5, u"#03/14/2024#"_s);
    m_tienda.mueve(u"caja_inicial"_s, 7, u"#03/14/2024#"_s);
    EXPECT_EQ(filas(Todas), QStringList{u"15/03/2024|0|0||Caja Inicial|Ana P|||100,5|0|1|Caja Inicial|"_s});
    EXPECT_EQ(m_tienda.filas(u"numerico10"_s), QStringList{u"100,5"_s});
}

TEST_F(CajaDiariaMovimientosTest, AnExpenseAndAWithdrawalGoOutOfTheTill)
{
    m_tienda.mueve(u"gastos"_s, 30.25);
    m_tienda.mueve(u"retiradas"_s, 200);
    EXPECT_EQ(filas(Todas), (QStringList{u"15/03/2024|0|0||Luz|Ana P|||-30,25|0|7|Gastos del Dia|nulo"_s,
                                         u"15/03/2024|0|0||Retirada|Ana P|||-200|0|8|Retiradas del Dia|nulo"_s}));
    EXPECT_EQ(m_tienda.filas(u"numerico16"_s), QStringList(2, u"30,25"_s));
}

TEST_F(CajaDiariaMovimientosTest, APaymentOfADebtNamesTheDebtsSaleAndClient)
{
    m_tienda.debe(9, 70, 50, 5, u"#01/02/2024#"_s);
    m_tienda.paga(9, 20.5, 2);
    EXPECT_EQ(
        filas(Todas),
        QStringList{
            u"15/03/2024|9|9|Eva Ruiz|Pago Pendiente de Factura: 70|Ana P|Tarjeta|2|20,5|0|4|Cobros de Deudas Pendientes|11A"_s});
    EXPECT_EQ(m_tienda.filas(u"numerico18"_s), QStringList{u"20,5"_s});
}

TEST_F(CajaDiariaMovimientosTest, APeriodOfTwoDaysHasNeitherOpeningCashNorWithdrawals)
{
    m_tienda.periodo(14, 15);
    m_tienda.mueve(u"caja_inicial"_s, 100, u"#03/14/2024#"_s);
    m_tienda.mueve(u"retiradas"_s, 200);
    m_tienda.mueve(u"gastos"_s, 30, u"#03/14/2024#"_s);
    m_tienda.paga(9, 20);
    EXPECT_EQ(filas(u"texto22,numerico10,numerico16,numerico18"_s), (QStringList{u"4|0|30|20"_s, u"7|0|30|20"_s}));
}

TEST_F(CajaDiariaMovimientosTest, ADayWithoutAnythingLeavesTheReportEmpty)
{
    m_tienda.tienda.ejecuta(u"insert into observacioncaja (fecha, tienda) values (#03/14/2024#, 'Centro')"_s);
    EXPECT_EQ(filas(u"texto1"_s), QStringList{});
    EXPECT_EQ(m_tienda.filas(u"texto1"_s, u"subinformes"_s), QStringList{});
}

TEST_F(CajaDiariaMovimientosTest, ANullAmountEndsTheRunBehindTheRowThatShowsIt)
{
    m_tienda.tienda.ejecuta(u"insert into gastos (fecha, tienda, motivo, empleado) values (#03/15/2024#, 'Centro', 'Luz', 1)"_s);
    EXPECT_EQ(m_tienda.error(ListadoCajaDiaria), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(m_tienda.filas(u"texto3,numerico2"_s), QStringList{u"Luz|nulo"_s});
}

} // namespace
} // namespace kestrane
