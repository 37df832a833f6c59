#include "platform/report/layout/operadores_expresion.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::evalua;

TEST(OperadoresExpresion, Cuentas)
{
    EXPECT_EQ(evalua(u"a / b"_s), Valor{2.5});
    EXPECT_EQ(evalua(u"a * b - 1.5"_s), Valor{38.5});
    EXPECT_EQ(evalua(u"'12,5' + 1"_s), Valor{13.5});
    EXPECT_EQ(prueba::numeroDeError([] { return evalua(u"1 / (a - 10)"_s); }), 11);
    EXPECT_EQ(prueba::numeroDeError([] { return evalua(u"1"_s + QString(200, u'0') + u" * 1"_s + QString(200, u'0')); }), 6);
}

TEST(OperadoresExpresion, Dias)
{
    EXPECT_EQ(evalua(u"f + 1"_s), Valor{dia(2024, 3, 6)});
    EXPECT_EQ(evalua(u"f - 5"_s), Valor{dia(2024, 2, 29)});
    EXPECT_EQ(evalua(u"f - f"_s), Valor{0.0});
    EXPECT_EQ(evalua(u"f > '04/03/2024'"_s), Valor{true});
    EXPECT_EQ(evalua(u"'05/03/2024' = f"_s), Valor{true});
}

TEST(OperadoresExpresion, NullSePropaga)
{
    for (const QString& texto : {u"a + n"_s, u"n * 2"_s, u"-n"_s, u"n = n"_s, u"n < 1"_s, u"no n"_s, u"f - n"_s})
        EXPECT_EQ(evalua(texto), Valor{}) << texto.toStdString();
}

TEST(OperadoresExpresion, JuntarLeeNullComoNada)
{
    EXPECT_EQ(evalua(u"'a' & n & 'b'"_s), Valor{u"ab"_s});
    EXPECT_EQ(evalua(u"a / b & ''"_s), Valor{u"2,5"_s});
}

TEST(OperadoresExpresion, Comparaciones)
{
    EXPECT_EQ(evalua(u"t = 'ANA'"_s), Valor{true});
    EXPECT_EQ(evalua(u"'10' = a"_s), Valor{true});
    EXPECT_EQ(evalua(u"'b' > 'A'"_s), Valor{true});
    EXPECT_EQ(evalua(u"a <> b"_s), Valor{true});
    EXPECT_EQ(evalua(u"a <= 10"_s), Valor{true});
    EXPECT_EQ(evalua(u"a >= 11"_s), Valor{false});
    EXPECT_EQ(evalua(u"a < 10"_s), Valor{false});
    EXPECT_EQ(prueba::numeroDeError([] { return evalua(u"t > 1"_s); }), 13);
}

TEST(OperadoresExpresion, LogicaConNull)
{
    EXPECT_EQ(evalua(u"n y 1 = 2"_s), Valor{false});
    EXPECT_EQ(evalua(u"n y 1 = 1"_s), Valor{});
    EXPECT_EQ(evalua(u"n o 1 = 1"_s), Valor{true});
    EXPECT_EQ(evalua(u"n o 1 = 2"_s), Valor{});
    EXPECT_EQ(evalua(u"no (1 = 1)"_s), Valor{false});
}

TEST(OperadoresExpresion, LoQueYaEstaDecididoNoSeCalcula)
{
    EXPECT_EQ(evalua(u"b <> 4 y 1 / 0 = 1"_s), Valor{false});
    EXPECT_EQ(evalua(u"b = 4 o 1 / 0 = 1"_s), Valor{true});
}

TEST(OperadoresExpresion, LaTabla)
{
    EXPECT_LT(operadorEntre(u"+")->fuerza, operadorEntre(u"*")->fuerza);
    EXPECT_EQ(operadorEntre(u"no"), nullptr);
    EXPECT_NE(operadorDelante(u"NO"), nullptr);
}

} // namespace
} // namespace kestrane::report
