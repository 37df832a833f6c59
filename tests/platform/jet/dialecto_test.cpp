#include "platform/jet/dialecto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace kestrane::jet {
namespace {

constexpr Motor Motores[] = {Motor::Sqlite, Motor::PostgreSql, Motor::MariaDb};

TEST(DialectoTest, EveryEngineHasAWordForEverything)
{
    for (const Motor motor : Motores) {
        const Dialecto& dialecto = dialectoDe(motor);
        EXPECT_GT(std::strlen(dialecto.cotejo), 0u);
        for (const Envoltura& parte : dialecto.parte)
            EXPECT_GT(std::strlen(parte.antes), 0u);
        for (const Envoltura& agregado : dialecto.agregado)
            EXPECT_GT(std::strlen(agregado.antes), 0u);
        EXPECT_GT(std::strlen(dialecto.textosUnidos.entre), 0u);
        EXPECT_GT(std::strlen(dialecto.textoNoNulo.antes), 0u);
        EXPECT_GT(std::strlen(dialecto.claveConCeros.antes), 0u);
    }
}

TEST(DialectoTest, WhatIsOpenedIsClosed)
{
    const auto cuadra = [](const Envoltura& envoltura) {
        const std::string_view antes = envoltura.antes;
        const std::string_view despues = envoltura.despues;
        const auto abiertos = std::ranges::count(antes, '(') + std::ranges::count(despues, '(');
        return abiertos == std::ranges::count(antes, ')') + std::ranges::count(despues, ')');
    };
    for (const Motor motor : Motores) {
        const Dialecto& dialecto = dialectoDe(motor);
        EXPECT_TRUE(std::ranges::all_of(dialecto.parametro, cuadra));
        EXPECT_TRUE(std::ranges::all_of(dialecto.parte, cuadra));
        EXPECT_TRUE(std::ranges::all_of(dialecto.agregado, cuadra));
        EXPECT_TRUE(cuadra(dialecto.condicionComoValor) && cuadra(dialecto.textoNoNulo) && cuadra(dialecto.claveConCeros));
    }
}

} // namespace
} // namespace kestrane::jet
