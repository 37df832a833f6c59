#include "platform/database/edicion.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

jet::Tabla tresColumnas()
{
    jet::Tabla tabla;
    tabla.columnas.resize(3);
    return tabla;
}

std::vector<int> porEscribir(const Edicion& fila)
{
    return {fila.porEscribir().begin(), fila.porEscribir().end()};
}

TEST(Edicion, NothingIsAssignedAtFirst)
{
    const Edicion fila{tresColumnas()};
    EXPECT_EQ(fila.valor(0), nullptr);
    EXPECT_FALSE(fila.pendiente());
}

TEST(Edicion, ColumnsAreWrittenInTheOrderOfTheirFirstAssignment)
{
    Edicion fila{tresColumnas()};
    fila.pon(2, 5);
    fila.pon(0, u"a"_s);
    fila.pon(2, 6);
    EXPECT_EQ(porEscribir(fila), (std::vector<int>{2, 0}));
    EXPECT_EQ(*fila.valor(2), Valor{6});
}

TEST(Edicion, NullAssignedIsAValue)
{
    Edicion fila{tresColumnas()};
    fila.pon(1, Valor{});
    ASSERT_NE(fila.valor(1), nullptr);
    EXPECT_TRUE(fila.valor(1)->esNulo());
    EXPECT_TRUE(fila.pendiente());
}

TEST(Edicion, WrittenValuesCanStillBeReadAndAssignedAnew)
{
    Edicion fila{tresColumnas()};
    fila.pon(1, 5);
    fila.escrita();
    EXPECT_FALSE(fila.pendiente());
    EXPECT_EQ(*fila.valor(1), Valor{5});
    fila.pon(1, 6);
    EXPECT_EQ(porEscribir(fila), std::vector<int>{1});
}

TEST(Edicion, EmptiedItForgetsAll)
{
    Edicion fila{tresColumnas()};
    fila.pon(0, 1);
    fila.escrita();
    fila.pon(1, 2);
    fila.vacia();
    EXPECT_EQ(fila.valor(0), nullptr);
    EXPECT_EQ(fila.valor(1), nullptr);
    EXPECT_FALSE(fila.pendiente());
}

} // namespace
} // namespace kestrane::database
