#include "platform/runtime/resultado.h"

#include "platform/runtime/soporte.h"

#include <memory>
#include <string>

namespace kestrane {
namespace {

struct Motivo
{
    std::string texto;
};

using Prueba = Resultado<int, Motivo>;

TEST(Resultado, LeerElLadoQueFaltaEsUnDefecto)
{
    const Prueba bueno{7};
    const Prueba malo{Motivo{"no"}};
    EXPECT_THROW(static_cast<void>(bueno.error()), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(malo.valor()), std::bad_variant_access);
}

TEST(Resultado, GuardaElValor)
{
    Prueba resultado{7};
    EXPECT_TRUE(resultado.bien());
    EXPECT_TRUE(resultado);
    EXPECT_EQ(resultado.valor(), 7);
    resultado.valor() = 8;
    EXPECT_EQ(resultado.valor(), 8);
}

TEST(Resultado, GuardaElMotivo)
{
    const Prueba resultado{Motivo{"no"}};
    EXPECT_FALSE(resultado.bien());
    EXPECT_FALSE(resultado);
    EXPECT_EQ(resultado.error().texto, "no");
}

TEST(Resultado, ValorYMotivoPuedenSerDelMismoTipoDeDato)
{
    // A whole number as value and an enumeration over the same numbers as reason are told apart by type alone.
    enum class Codigo { Uno = 1 };
    const Resultado<int, Codigo> bueno{1};
    const Resultado<int, Codigo> malo{Codigo::Uno};
    EXPECT_TRUE(bueno.bien());
    EXPECT_FALSE(malo.bien());
}

TEST(Resultado, EntregaLoQueSoloSeMueve)
{
    Resultado<std::unique_ptr<int>, Motivo> resultado{std::make_unique<int>(5)};
    const std::unique_ptr<int> sacado = std::move(resultado).valor();
    EXPECT_EQ(*sacado, 5);

    Resultado<int, std::unique_ptr<Motivo>> malo{std::make_unique<Motivo>(Motivo{"no"})};
    const std::unique_ptr<Motivo> motivo = std::move(malo).error();
    EXPECT_EQ(motivo->texto, "no");
}

} // namespace
} // namespace kestrane
