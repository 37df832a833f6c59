#include "cash/dinero_en_caja.h"

#include "cash/ventas_de_prueba.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class DineroEnCajaTest : public prueba::PruebaVentas
{
protected:
    double efectivo() { return efectivoDelPeriodo(m_listados); }
    double tarjeta() { return tarjetaDelPeriodo(m_listados); }
};

TEST_F(DineroEnCajaTest, CodeOneIsCashTwoIsCardThreeIsBothAndOthersAreNeither)
{
    venta(101, 1, u"100"_s, u"1"_s, u"2"_s);
    venta(102, 2, u"200"_s, u"1"_s, u"2"_s);
    venta(103, 3, u"50"_s, u"30"_s, u"20.5"_s);
    venta(104, 4, u"1000"_s, u"1"_s, u"2"_s);
    venta(105, 6, u"1000"_s, u"1"_s, u"2"_s);
    EXPECT_EQ(efectivo(), 130);
    EXPECT_EQ(tarjeta(), 220.5);
}

TEST_F(DineroEnCajaTest, PaymentsOfDebtsComeInByTheirOwnForm)
{
    cobro(1, u"10"_s, u"1"_s, u"2"_s);
    cobro(2, u"20"_s, u"1"_s, u"2"_s);
    cobro(3, u"8"_s, u"5"_s, u"3.5"_s);
    cobro(4, u"99"_s, u"1"_s, u"2"_s);
    EXPECT_EQ(efectivo(), 15);
    EXPECT_EQ(tarjeta(), 23.5);
}

TEST_F(DineroEnCajaTest, ReturnsGoOutByTheirOwnForm)
{
    abono(1, 90, 1, u"10"_s, u"1"_s, u"2"_s);
    abono(2, 90, 2, u"20"_s, u"1"_s, u"2"_s);
    abono(3, 90, 3, u"8"_s, u"5"_s, u"3.5"_s);
    abono(4, 90, 4, u"99"_s, u"1"_s, u"2"_s);
    EXPECT_EQ(efectivo(), -15);
    EXPECT_EQ(tarjeta(), -23.5);
}

TEST_F(DineroEnCajaTest, ADebtIsTakenOffTheCardAndNotOffTheCash)
{
    venta(101, 1, u"100"_s);
    deuda(1, 101, u"30"_s);
    EXPECT_EQ(efectivo(), 100);
    EXPECT_EQ(tarjeta(), 0);
    venta(102, 2, u"200"_s);
    deuda(2, 102, u"50"_s);
    EXPECT_EQ(efectivo(), 100);
    EXPECT_EQ(tarjeta(), 150);
}

TEST_F(DineroEnCajaTest, ASplitTicketWithADebtAddsUpToMoreThanWasPaid)
{
    venta(103, 3, u"100"_s, u"40"_s, u"10"_s);
    deuda(1, 103, u"50"_s);
    EXPECT_EQ(efectivo(), 40);
    EXPECT_EQ(tarjeta(), 50) << "the total less the debt, not the card's part";
}

TEST_F(DineroEnCajaTest, ADebtOfAnotherStoreIsNotLookedAt)
{
    venta(102, 2, u"200"_s);
    ejecuta({u"insert into cabecera_pago (num_pago, num_factura, importe, tienda) values (1, 102, 50, 'Sur')"_s});
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(tarjeta(), 200);
}

TEST_F(DineroEnCajaTest, OnlyThePeriodAndTheStoreCount)
{
    venta(101, 1, u"1"_s);
    venta(102, 1, u"10"_s);
    venta(103, 1, u"100"_s);
    ejecuta({u"update cabecera_factura set fechaventa = #03/16/2024# where numero = 101"_s,
             u"update cabecera_factura set tienda = 'Centro Sur' where numero = 102"_s,
             u"update cabecera_factura set tienda = 'Gran Centro' where numero = 103"_s});
    EXPECT_EQ(efectivo(), 110);
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(efectivo(), 100);
}

TEST_F(DineroEnCajaTest, TheBarGoesOnWithEachRowOfThePass)
{
    venta(101, 1, u"1"_s);
    venta(102, 2, u"1"_s);
    venta(103, 3, u"1"_s, u"1"_s, u"1"_s);
    cobro(1, u"1"_s);
    abono(1, 90, 1, u"1"_s);
    static_cast<void>(efectivo());
    EXPECT_EQ(m_puesto.progreso.pasos, 4);
    static_cast<void>(tarjeta());
    EXPECT_EQ(m_puesto.progreso.pasos, 4 + 2);
}

TEST_F(DineroEnCajaTest, ANullAmountThatIsAddedEndsTheRun)
{
    venta(103, 3, u"50"_s, u"null"_s, u"20"_s);
    EXPECT_EQ(numeroDeError([&] { return efectivo(); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(tarjeta(), 20);
    venta(102, 2, u"null"_s);
    EXPECT_EQ(numeroDeError([&] { return tarjeta(); }), ErrorEjecucion::UsoNoValidoDeNull);
}

} // namespace
} // namespace kestrane
