#include "platform/report/acumulador.h"

#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

Valor de(FuncionAgregado funcion, const std::vector<Valor>& valores)
{
    Acumulador acumulador{funcion};
    for (const Valor& valor : valores)
        acumulador.anade(valor, ConfiguracionRegional::espania());
    return acumulador.valor();
}

TEST(Acumulador, NullDoesNotCount)
{
    const std::vector<Valor> valores{Valor{}, 4.0, Valor{}, 2.0};
    EXPECT_EQ(de(FuncionAgregado::Suma, valores), Valor{6.0});
    EXPECT_EQ(de(FuncionAgregado::Cuenta, valores), Valor{qint32{2}});
    EXPECT_EQ(de(FuncionAgregado::Media, valores), Valor{3.0});
    EXPECT_EQ(de(FuncionAgregado::Minimo, valores), Valor{2.0});
    EXPECT_EQ(de(FuncionAgregado::Maximo, valores), Valor{4.0});
}

TEST(Acumulador, OfNothingSumsAreZeroAndTheRestIsNull)
{
    EXPECT_EQ(de(FuncionAgregado::Suma, {Valor{}}), Valor{0.0});
    EXPECT_EQ(de(FuncionAgregado::Acumulado, {}), Valor{0.0});
    EXPECT_EQ(de(FuncionAgregado::Cuenta, {}), Valor{qint32{0}});
    EXPECT_TRUE(de(FuncionAgregado::Media, {}).esNulo());
    EXPECT_TRUE(de(FuncionAgregado::Minimo, {Valor{}}).esNulo());
}

TEST(Acumulador, DoublesAreAddedInTheOrderOfTheRows)
{
    EXPECT_EQ(de(FuncionAgregado::Suma, {1e16, 1.0, -1e16}), Valor{0.0});
    EXPECT_EQ(de(FuncionAgregado::Suma, {1e16, -1e16, 1.0}), Valor{1.0});
}

TEST(Acumulador, TextsSortBySpanishRules)
{
    const std::vector<Valor> textos{u"oca"_s, u"ñu"_s, u"Nube"_s};
    EXPECT_EQ(de(FuncionAgregado::Minimo, textos), Valor{u"Nube"_s});
    EXPECT_EQ(de(FuncionAgregado::Maximo, textos), Valor{u"oca"_s});
}

TEST(Acumulador, DatesKeepTheirKind)
{
    const Fecha dia = *Fecha::deCalendario(2024, 3, 5);
    EXPECT_EQ(de(FuncionAgregado::Maximo, {dia, dia.masDias(-1)}), Valor{dia});
}

TEST(Acumulador, ATextThatIsNoNumberIsNotAdded)
{
    Acumulador acumulador{FuncionAgregado::Suma};
    try {
        acumulador.anade(u"doce"_s, ConfiguracionRegional::espania());
        FAIL() << "added";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::TiposNoCoinciden);
    }
}

TEST(Acumulador, EmptiedItBeginsAnew)
{
    Acumulador acumulador{FuncionAgregado::Maximo};
    acumulador.anade(5.0, ConfiguracionRegional::espania());
    acumulador.vacia();
    EXPECT_TRUE(acumulador.valor().esNulo());
    acumulador.anade(2.0, ConfiguracionRegional::espania());
    EXPECT_EQ(acumulador.valor(), Valor{2.0});
}

} // namespace
} // namespace kestrane::report
