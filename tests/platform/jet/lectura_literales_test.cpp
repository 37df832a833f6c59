#include "platform/jet/lectura_literales.h"

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

/// The value and what is left of the text, "no" for what no double holds.
std::pair<double, QString> numero(const QString& texto)
{
    const char16_t* inicio = QStringView(texto).utf16();
    const NumeroLeido leido = leeNumero(inicio, inicio + texto.size());
    const QString resto = texto.sliced(leido.fin - inicio);
    return {leido.valor, leido.valido ? resto : u"no"_s};
}

TEST(LecturaLiteralesTest, ANumberEndsWhereItsCharactersEnd)
{
    EXPECT_EQ(numero(u"2and"_s), std::pair(2.0, u"and"_s));
    EXPECT_EQ(numero(u"2."_s), std::pair(2.0, u"."_s));
    EXPECT_EQ(numero(u"2.e5"_s), std::pair(2.0, u".e5"_s));
    EXPECT_EQ(numero(u"2.5.5"_s), std::pair(2.5, u".5"_s));
    EXPECT_EQ(numero(u".5"_s), std::pair(0.5, u""_s));
    EXPECT_EQ(numero(u"1e"_s), std::pair(1.0, u"e"_s));
    EXPECT_EQ(numero(u"1e+"_s), std::pair(1.0, u"e+"_s));
    EXPECT_EQ(numero(u"1E2x"_s), std::pair(100.0, u"x"_s));
    EXPECT_EQ(numero(u"1e400"_s).second, u"no"_s);
    EXPECT_EQ(numero(u"1e-400"_s), std::pair(0.0, u""_s));
}

TEST(LecturaLiteralesTest, EveryDoubleIsReadAsItIsWritten)
{
    std::mt19937_64 azar{15032024};
    for (int vez = 0; vez < 20'000; ++vez) {
        const int decimales = static_cast<int>(azar() % 12);
        const auto mantisa = static_cast<double>(azar() % (vez % 2 == 0 ? 1'000'000u : 1'000'000'000'000'000u));
        const QString texto = QString::number(mantisa / std::pow(10.0, decimales), 'g', 1 + static_cast<int>(azar() % 17));
        bool bien = false;
        const double esperado = texto.toDouble(&bien);
        ASSERT_TRUE(bien);
        EXPECT_EQ(numero(texto), std::pair(esperado, u""_s)) << qPrintable(texto);
    }
}

TEST(LecturaLiteralesTest, ATextEndsAtItsOwnApostrophe)
{
    const auto texto = [](QStringView t) {
        const TextoLeido leido = leeTexto(t.utf16(), t.utf16() + t.size());
        return leido.fin ? leido.contenido.toString() + (leido.comillasDobladas ? u"+"_s : u""_s) : u"none"_s;
    };
    EXPECT_EQ(texto(u"'x' y"), u"x"_s);
    EXPECT_EQ(texto(u"''"), u""_s);
    EXPECT_EQ(texto(u"'a''b'"), u"a''b+"_s);
    EXPECT_EQ(texto(u"'a''"), u"none"_s);
    EXPECT_EQ(texto(u"'"), u"none"_s);
}

TEST(LecturaLiteralesTest, ADateThatDoesNotExistHasAnEndButNoValue)
{
    const QStringView texto = u"#02/30/2024# x";
    const FechaLeida leida = leeFecha(texto.utf16(), texto.utf16() + texto.size());
    EXPECT_FALSE(leida.valida);
    EXPECT_EQ(leida.fin - texto.utf16(), 12);
}

} // namespace
} // namespace kestrane::jet
