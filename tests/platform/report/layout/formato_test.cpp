#include "platform/report/layout/formato.h"

#include "platform/runtime/soporte.h"

#include <limits>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::enUs;
using prueba::es;

QString escribe(const Valor& valor, Formato formato, int decimales = 2)
{
    return escribeValor(valor, {formato, decimales, false}, es());
}

TEST(EscribeValor, NumerosConMarcasDeMiles)
{
    EXPECT_EQ(escribe(1234.5, Formato::Moneda), u"1.234,50"_s);
    EXPECT_EQ(escribe(-1234567.0, Formato::Numero), u"-1.234.567,00"_s);
    EXPECT_EQ(escribe(999.994, Formato::Numero), u"999,99"_s);
    EXPECT_EQ(escribe(-123.0, Formato::Entero), u"-123"_s);
    EXPECT_EQ(escribe(qint32{1234}, Formato::Entero), u"1.234"_s);
    EXPECT_EQ(escribe(12.5, Formato::Porcentaje), u"12,50 %"_s);
    EXPECT_EQ(escribe(0.5, Formato::Moneda, 3), u"0,500"_s);
    EXPECT_EQ(escribeValor(1234.5, {Formato::Moneda}, enUs()), u"1,234.50"_s);
}

TEST(EscribeValor, GeneralEscribeComoLaConversion)
{
    EXPECT_EQ(escribe(1234.5, Formato::General), u"1234,5"_s);
    EXPECT_EQ(escribe(u"Ana"_s, Formato::General), u"Ana"_s);
    EXPECT_EQ(escribe(true, Formato::General), u"Verdadero"_s);
}

TEST(EscribeValor, NullQuedaEnBlanco)
{
    for (const Formato formato : {Formato::General, Formato::Moneda, Formato::Fecha, Formato::Hora})
        EXPECT_EQ(escribe(Nulo{}, formato), u""_s);
}

TEST(EscribeValor, CeroEnBlancoMiraLoQueSeVeria)
{
    const FormatoValor formato{Formato::Moneda, 2, true};
    EXPECT_EQ(escribeValor(0.0, formato, es()), u""_s);
    EXPECT_EQ(escribeValor(0.004, formato, es()), u""_s);
    EXPECT_EQ(escribeValor(0.005, formato, es()), u"0,01"_s);
    EXPECT_EQ(escribeValor(qint32{0}, {Formato::General, 2, true}, es()), u""_s);
}

TEST(EscribeValor, FechasYHoras)
{
    EXPECT_EQ(escribe(dia(2024, 3, 5, 9, 5), Formato::Fecha), u"05/03/2024"_s);
    EXPECT_EQ(escribe(dia(2024, 3, 5, 9, 5), Formato::FechaHora), u"05/03/2024 9:05"_s);
    EXPECT_EQ(escribe(dia(2024, 3, 5, 9, 5), Formato::Hora), u"9:05"_s);
    EXPECT_EQ(escribe(dia(2024, 3, 5), Formato::FechaHora), u"05/03/2024 0:00"_s);
}

TEST(EscribeValor, ElDiaCeroNoEsUnDia)
{
    EXPECT_EQ(escribe(Fecha{}, Formato::Fecha), u""_s);
    EXPECT_EQ(escribe(prueba::horaSola(9, 5, 0), Formato::FechaHora), u"9:05"_s);
}

TEST(EscribeValor, LoQueNoEsDelFormatoQuedaComoEsta)
{
    EXPECT_EQ(escribe(u"sin precio"_s, Formato::Moneda), u"sin precio"_s);
    EXPECT_EQ(escribe(u"12"_s, Formato::Entero), u"12"_s);
    EXPECT_EQ(escribe(12.5, Formato::Fecha), u"12,5"_s);
    EXPECT_EQ(escribe(dia(2024, 3, 5), Formato::Moneda), u"05/03/2024"_s);
    EXPECT_EQ(escribe(1e15, Formato::Moneda), u"1E+15"_s);
    EXPECT_EQ(prueba::numeroDeError([] { return escribe(std::numeric_limits<double>::infinity(), Formato::Moneda); }), 6);
}

TEST(FormatoDeNombre, LosDeLosLayouts)
{
    EXPECT_EQ(formatoDeNombre(u"fecha-hora"), Formato::FechaHora);
    EXPECT_EQ(formatoDeNombre(u"Moneda"), Formato::Moneda);
    EXPECT_FALSE(formatoDeNombre(u"euros").has_value());
}

TEST(EscribeValor, AmountsHaveTheShopsDecimalsWhereTheLayoutDoesNotSay)
{
    ConfiguracionRegional regional = es();
    const auto escrito = [&regional](int decimales, const FormatoValor& formato) {
        regional.decimales = decimales;
        return escribeValor(1234.5678, formato, regional);
    };
    EXPECT_EQ(escrito(0, {.formato = Formato::Moneda}), u"1.235"_s);
    EXPECT_EQ(escrito(2, {.formato = Formato::Moneda}), u"1.234,57"_s);
    EXPECT_EQ(escrito(3, {.formato = Formato::Moneda}), u"1.234,568"_s);
    EXPECT_EQ(escrito(3, {.formato = Formato::Moneda, .decimales = 1}), u"1.234,6"_s);
    EXPECT_EQ(escrito(3, {.formato = Formato::Numero}), u"1.234,57"_s);
    EXPECT_EQ(escrito(3, {.formato = Formato::Porcentaje}), u"1.234,57 %"_s);
    EXPECT_EQ(escrito(3, {.formato = Formato::Entero}), u"1.235"_s);
    EXPECT_EQ(escrito(-1, {.formato = Formato::Moneda}), u"1.235"_s) << "no fewer than none";
    EXPECT_EQ(escrito(32767, {.formato = Formato::Moneda}), u"1.234,5678000000"_s) << "no more than ten";
}

} // namespace
} // namespace kestrane::report
