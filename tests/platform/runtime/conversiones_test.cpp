#include "platform/runtime/conversiones.h"

#include "platform/runtime/soporte.h"

#include <array>
#include <cfenv>
#include <limits>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::enUs;
using prueba::es;
using prueba::horaSola;
using prueba::numeroDeError;

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double NoEsNumero = std::numeric_limits<double>::quiet_NaN();

// ---------------------------------------------------------------- double to integer

TEST(DobleAEntero, FueraDeIntervaloEsError6)
{
    for (const double numero : {32767.5, 32768.0, -32768.51, -32769.0, 1e300, Infinito, -Infinito, NoEsNumero})
        EXPECT_EQ(numeroDeError([&] { return aEntero16(numero); }), 6) << numero;
    for (const double numero : {2147483647.5, 2147483648.0, -2147483648.51, 1e300, Infinito, -Infinito, NoEsNumero})
        EXPECT_EQ(numeroDeError([&] { return aEntero32(numero); }), 6) << numero;
}

TEST(DobleAEntero, ElMedioVaAlPar)
{
    EXPECT_EQ(aEntero16(0.5), 0);
    EXPECT_EQ(aEntero16(1.5), 2);
    EXPECT_EQ(aEntero16(2.5), 2);
    EXPECT_EQ(aEntero16(3.5), 4);
    EXPECT_EQ(aEntero16(-0.5), 0);
    EXPECT_EQ(aEntero16(-1.5), -2);
    EXPECT_EQ(aEntero16(-2.5), -2);
    EXPECT_EQ(aEntero32(0.5), 0);
    EXPECT_EQ(aEntero32(1.5), 2);
    EXPECT_EQ(aEntero32(-2.5), -2);
}

TEST(DobleAEntero, LoDemasAlMasCercano)
{
    EXPECT_EQ(aEntero16(0.49999999999999994), 0);
    EXPECT_EQ(aEntero16(2.4999999999999996), 2);
    EXPECT_EQ(aEntero16(2.5000000000000004), 3);
    EXPECT_EQ(aEntero16(-0.2), 0);
    EXPECT_EQ(aEntero16(-2.6), -3);
    EXPECT_EQ(aEntero16(-1e-300), 0);
}

TEST(DobleAEntero, HastaElBorde)
{
    EXPECT_EQ(aEntero16(32767), 32767);
    EXPECT_EQ(aEntero16(32767.4), 32767);
    EXPECT_EQ(aEntero16(-32768), -32768);
    EXPECT_EQ(aEntero16(-32768.5), -32768);
    EXPECT_EQ(aEntero32(2147483647.4), 2147483647);
    EXPECT_EQ(aEntero32(-2147483648.5), std::numeric_limits<qint32>::min());
}

TEST(DobleAEntero, NoDependeDelModoDeRedondeoDelProcesador)
{
    for (const int modo : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        std::fesetround(modo);
        const auto [a, b, c, d] = std::array{aEntero16(0.5), aEntero16(1.5), aEntero16(-2.5), aEntero16(2.7)};
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(a, 0);
        EXPECT_EQ(b, 2);
        EXPECT_EQ(c, -2);
        EXPECT_EQ(d, 3);
    }
}

// ---------------------------------------------------------------- values into typed variables

TEST(ValorAVariable, NullEsError94EnCadaTipo)
{
    const Valor nulo;
    EXPECT_EQ(numeroDeError([&] { return aDoble(nulo, es()); }), 94);
    EXPECT_EQ(numeroDeError([&] { return aEntero16(nulo, es()); }), 94);
    EXPECT_EQ(numeroDeError([&] { return aEntero32(nulo, es()); }), 94);
    EXPECT_EQ(numeroDeError([&] { return aLogico(nulo, es()); }), 94);
    EXPECT_EQ(numeroDeError([&] { return aFecha(nulo, es()); }), 94);
    EXPECT_EQ(numeroDeError([&] { return aTextoEstricto(nulo, es()); }), 94);
}

TEST(ValorAVariable, TextoQueNoSirveEsError13)
{
    const Valor texto{u"abc"_s};
    EXPECT_EQ(numeroDeError([&] { return aDoble(texto, es()); }), 13);
    EXPECT_EQ(numeroDeError([&] { return aEntero16(texto, es()); }), 13);
    EXPECT_EQ(numeroDeError([&] { return aEntero32(texto, es()); }), 13);
    EXPECT_EQ(numeroDeError([&] { return aLogico(texto, es()); }), 13);
    EXPECT_EQ(numeroDeError([&] { return aFecha(texto, es()); }), 13);
    EXPECT_EQ(numeroDeError([] { return aDoble(Valor{u""_s}, es()); }), 13);
    EXPECT_EQ(numeroDeError([] { return aLogico(Valor{u""_s}, es()); }), 13);
}

TEST(ValorAVariable, LoQueNoCabeEsError6)
{
    EXPECT_EQ(numeroDeError([] { return aEntero16(Valor{u"32767,5"_s}, es()); }), 6);
    EXPECT_EQ(numeroDeError([] { return aEntero16(Valor{70000}, es()); }), 6);
    EXPECT_EQ(numeroDeError([] { return aEntero32(Valor{3e9}, es()); }), 6);
    EXPECT_EQ(numeroDeError([] { return aFecha(Valor{2958466}, es()); }), 6);
    EXPECT_EQ(numeroDeError([] { return aFecha(Valor{2958465.9999999}, es()); }), 6);
    EXPECT_EQ(numeroDeError([] { return aFecha(Valor{-657435}, es()); }), 6);
    EXPECT_EQ(numeroDeError([] { return aFecha(Valor{NoEsNumero}, es()); }), 6);
}

TEST(ValorAVariable, UnTextoSeLeeConLasMarcasRegionales)
{
    EXPECT_EQ(aDoble(Valor{u" 12,5 "_s}, es()), 12.5);
    EXPECT_EQ(aDoble(Valor{u"12.5"_s}, enUs()), 12.5);
    EXPECT_EQ(aEntero16(Valor{u"2,5"_s}, es()), 2);
    EXPECT_EQ(aEntero32(Valor{u"70000"_s}, es()), 70000);
    EXPECT_EQ(aFecha(Valor{u"05/03/2024"_s}, es()), dia(2024, 3, 5));
    EXPECT_EQ(aFecha(Valor{u"05/03/2024"_s}, enUs()), dia(2024, 5, 3));
}

TEST(ValorAVariable, LosNumerosYLasBanderas)
{
    EXPECT_EQ(aDoble(Valor{true}, es()), -1);
    EXPECT_EQ(aEntero16(Valor{false}, es()), 0);
    EXPECT_EQ(aEntero32(Valor{2.5}, es()), 2);
    EXPECT_EQ(aDoble(Valor{qint16{7}}, es()), 7);
}

TEST(ValorAVariable, UnaFechaEsSuNumeroDeSerieYAlReves)
{
    EXPECT_EQ(aDoble(Valor{dia(2024, 3, 15)}, es()), 45366);
    EXPECT_EQ(aDoble(Valor{dia(2024, 3, 15, 6, 0, 0)}, es()), 45366.25);
    EXPECT_EQ(aDoble(Valor{dia(1899, 12, 29, 6, 0, 0)}, es()), -0.75);
    EXPECT_EQ(aEntero32(Valor{dia(2024, 3, 15)}, es()), 45366);
    EXPECT_EQ(aFecha(Valor{45366}, es()), dia(2024, 3, 15));
    EXPECT_EQ(aFecha(Valor{45366.25}, es()), dia(2024, 3, 15, 6, 0, 0));
    EXPECT_EQ(aFecha(Valor{-0.75}, es()), dia(1899, 12, 29, 6, 0, 0));
    EXPECT_EQ(aFecha(Valor{0}, es()), Fecha{});
    EXPECT_EQ(aFecha(Valor{45365.9999999}, es()), dia(2024, 3, 15)); // less than half a second before midnight
    EXPECT_EQ(aFecha(Valor{-657434}, es()), dia(100, 1, 1));
    EXPECT_EQ(aFecha(Valor{2958465}, es()), dia(9999, 12, 31));
}

TEST(ValorAVariable, CadaSegundoSobreviveALaSerie)
{
    for (qint32 segundo = 0; segundo < Fecha::SegundosPorDia; ++segundo) {
        const Fecha fecha = Fecha::deSerie(45366, segundo);
        ASSERT_EQ(aFecha(Valor{aDoble(Valor{fecha}, es())}, es()), fecha);
    }
}

TEST(ValorAVariable, Banderas)
{
    EXPECT_TRUE(aLogico(Valor{true}, es()));
    EXPECT_TRUE(aLogico(Valor{-1}, es()));
    EXPECT_TRUE(aLogico(Valor{0.5}, es()));
    EXPECT_FALSE(aLogico(Valor{0}, es()));
    EXPECT_TRUE(aLogico(Valor{u"Verdadero"_s}, es()));
    EXPECT_TRUE(aLogico(Valor{u" verdadero "_s}, es()));
    EXPECT_FALSE(aLogico(Valor{u"Falso"_s}, es()));
    EXPECT_TRUE(aLogico(Valor{u"-1"_s}, es()));
    EXPECT_FALSE(aLogico(Valor{u"0,0"_s}, es()));
}

// ---------------------------------------------------------------- joining into a text

TEST(ValorATexto, CadaClase)
{
    EXPECT_EQ(aTexto(Valor{}, es()), u""_s);
    EXPECT_EQ(aTexto(Valor{true}, es()), u"Verdadero"_s);
    EXPECT_EQ(aTexto(Valor{false}, es()), u"Falso"_s);
    EXPECT_EQ(aTexto(Valor{qint16{-7}}, es()), u"-7"_s);
    EXPECT_EQ(aTexto(Valor{70000}, es()), u"70000"_s);
    EXPECT_EQ(aTexto(Valor{12.5}, es()), u"12,5"_s);
    EXPECT_EQ(aTexto(Valor{dia(2024, 3, 5)}, es()), u"05/03/2024"_s);
    EXPECT_EQ(aTexto(Valor{horaSola(9, 5, 0)}, es()), u"9:05:00"_s);
    EXPECT_EQ(aTexto(Valor{u" Ana "_s}, es()), u" Ana "_s);
}

TEST(ValorATexto, LasBanderasSonEspaniolasEnCualquierPais)
{
    EXPECT_EQ(aTexto(Valor{true}, enUs()), u"Verdadero"_s);
    EXPECT_EQ(aTexto(Valor{false}, enUs()), u"Falso"_s);
}

TEST(ValorATexto, UnaBanderaSueltaNoEsUnNumero)
{
    EXPECT_EQ(aTexto(true, es()), u"Verdadero"_s);
    EXPECT_EQ(aTexto(1, es()), u"1"_s);
    EXPECT_EQ(aTexto(qint16{1}, es()), u"1"_s);
}

TEST(ValorATexto, EstrictoEscribeIgual)
{
    EXPECT_EQ(aTextoEstricto(Valor{12.5}, es()), u"12,5"_s);
    EXPECT_EQ(aTextoEstricto(Valor{true}, es()), u"Verdadero"_s);
    EXPECT_EQ(aTextoEstricto(Valor{u""_s}, es()), u""_s);
}

// ---------------------------------------------------------------- arithmetic

TEST(Divide, PorCeroEsError11)
{
    EXPECT_EQ(numeroDeError([] { return divide(1, 0); }), 11);
    EXPECT_EQ(numeroDeError([] { return divide(0, 0); }), 11);
    EXPECT_EQ(numeroDeError([] { return divide(1, -0.0); }), 11);
}

TEST(Divide, CocienteDemasiadoGrandeEsError6)
{
    EXPECT_EQ(numeroDeError([] { return divide(1e300, 1e-300); }), 6);
}

TEST(Divide, Cociente)
{
    EXPECT_EQ(divide(5, 2), 2.5);
    EXPECT_EQ(divide(-1, 4), -0.25);
    EXPECT_EQ(divide(0, 4), 0);
}

TEST(Contador16, PasarDe32767EsError6YConservaElValor)
{
    Contador16 contador{32766};
    contador += 1;
    EXPECT_EQ(contador.valor(), 32767);
    EXPECT_EQ(numeroDeError([&] { return contador += 1; }), 6);
    EXPECT_EQ(contador.valor(), 32767);

    Contador16 negativo{-32767};
    negativo -= 1;
    EXPECT_EQ(negativo.valor(), -32768);
    EXPECT_EQ(numeroDeError([&] { return negativo -= 1; }), 6);
    EXPECT_EQ(numeroDeError([] { return Contador16{32767.5}; }), 6);
    EXPECT_EQ(numeroDeError([&] { return contador += NoEsNumero; }), 6);
}

TEST(Contador16, RedondeaEnCadaSuma)
{
    Contador16 contador;
    contador += 0.5; // 0.5 to 0
    EXPECT_EQ(contador.valor(), 0);
    contador += 1.5; // 1.5 to 2
    EXPECT_EQ(contador.valor(), 2);
    contador += 0.5; // 2.5 to 2
    EXPECT_EQ(contador.valor(), 2);
    contador += 1.25; // 3.25 to 3
    EXPECT_EQ(contador.valor(), 3);
    contador += 0.5; // 3.5 to 4
    EXPECT_EQ(contador.valor(), 4);
    contador -= 0.5; // 3.5 to 4
    EXPECT_EQ(contador.valor(), 4);
    contador -= 6.5; // -2.5 to -2
    EXPECT_EQ(contador.valor(), -2);
}

TEST(Contador16, EmpiezaEnCeroYSeCompara)
{
    EXPECT_EQ(Contador16{}.valor(), 0);
    EXPECT_EQ(Contador16{2.5}, Contador16{2});
    EXPECT_LT(Contador16{-1}, Contador16{});
}

} // namespace
} // namespace kestrane
