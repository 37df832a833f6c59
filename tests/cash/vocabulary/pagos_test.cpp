#include "cash/vocabulary/pagos.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

TEST(PagosTest, ACodeIsOneOfTheFourOrHasANameAlone)
{
    const Pago pagos[] = {Pago::Contado, Pago::Tarjeta, Pago::Partido, Pago::Deposito};
    for (qint16 codigo = 0; codigo <= 6; ++codigo) {
        for (const Pago pago : pagos)
            EXPECT_EQ(esPago(codigo, pago), codigo == static_cast<qint16>(pago)) << codigo;
    }
    EXPECT_EQ(static_cast<int>(Pago::Contado), 1);
    EXPECT_EQ(static_cast<int>(Pago::Tarjeta), 2);
    EXPECT_EQ(static_cast<int>(Pago::Partido), 3);
    EXPECT_EQ(static_cast<int>(Pago::Deposito), 4);
}

TEST(PagosTest, MoneyComesInWithAnyCodeButFour)
{
    for (const qint16 codigo : {qint16{0}, qint16{1}, qint16{2}, qint16{3}, qint16{6}})
        EXPECT_TRUE(entraDinero(codigo)) << codigo;
    EXPECT_FALSE(entraDinero(qint16{4}));
}

TEST(PagosTest, NothingHoldsOfANullCode)
{
    EXPECT_FALSE(esPago(Valor{}, Pago::Contado));
    EXPECT_FALSE(esPago(Valor{}, Pago::Deposito));
    EXPECT_FALSE(entraDinero(Valor{}));
}

} // namespace
} // namespace kestrane
