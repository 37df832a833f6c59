#include "platform/database/ligador.h"

#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;
using jet::Literal;
using jet::Parametro;
using jet::TipoColumna;

Literal numero(double valor)
{
    Literal literal;
    literal.clase = valor == qint32(valor) ? Literal::Clase::Entero : Literal::Clase::Doble;
    literal.numero = valor;
    return literal;
}

Literal texto(QStringView valor)
{
    Literal literal;
    literal.clase = Literal::Clase::Texto;
    literal.texto = valor;
    return literal;
}

Literal fecha(Fecha valor)
{
    Literal literal;
    literal.clase = Literal::Clase::Fecha;
    literal.fecha = valor;
    return literal;
}

/// A mark of a condition.
Parametro marca(TipoColumna tipo, bool negado = false, int literal = 0)
{
    return {literal, tipo, 0, negado, QString{}};
}

/// Binds one literal; a text comes back as a value, since what the binder lends ends with it.
Valor ligado(const Parametro& parametro, const Literal& literal)
{
    static const ConfiguracionRegional espania = ConfiguracionRegional::espania();
    Ligador ligador{espania};
    const Ligado valor = ligador.liga({&parametro, 1}, {&literal, 1})[0];
    if (const auto* vista = std::get_if<QStringView>(&valor))
        return vista->toString();
    if (const auto* entero = std::get_if<qint32>(&valor))
        return *entero;
    if (const auto* doble = std::get_if<double>(&valor))
        return *doble;
    return std::get<Fecha>(valor);
}

QString rechazo(const Parametro& parametro, const Literal& literal)
{
    try {
        static_cast<void>(ligado(parametro, literal));
        return {};
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::SentenciaRechazada);
        return error.descripcion();
    }
}

TEST(Ligador, ATextThatIsNoNumberOrDateIsRefusedWithTheColumn)
{
    EXPECT_TRUE(rechazo({0, TipoColumna::Doble, 0, false, u"numerico1"_s}, texto(u"doce")).contains(u"numerico1"));
    EXPECT_TRUE(rechazo({0, TipoColumna::Doble, 0, false, u"numerico1"_s}, texto(u"")).contains(u"numerico1"));
    EXPECT_TRUE(rechazo({0, TipoColumna::FechaHora, 0, false, u"fecha3"_s}, texto(u"")).contains(u"fecha3"));
}

TEST(Ligador, ATextWiderThanItsColumnIsRefusedWithBothWidths)
{
    const QString descripcion = rechazo({0, TipoColumna::Texto, 3, false, u"texto1"_s}, texto(u"cinco"));
    EXPECT_TRUE(descripcion.contains(u"texto1"));
    EXPECT_TRUE(descripcion.contains(u"5 caracteres"));
    EXPECT_TRUE(descripcion.contains(u"caben 3"));
}

TEST(Ligador, AnIntegerOutOfRangeIsRefusedWithTheColumn)
{
    EXPECT_TRUE(rechazo({0, TipoColumna::Entero16, 0, false, u"pago"_s}, numero(40000)).contains(u"pago"));
    EXPECT_TRUE(rechazo({0, TipoColumna::Entero32, 0, false, u"codigo"_s}, numero(3e9)).contains(u"3000000000"));
    EXPECT_TRUE(rechazo({0, TipoColumna::FechaHora, 0, false, u"fecha3"_s}, numero(1e9)).contains(u"fecha3"));
}

TEST(Ligador, ATextWithTheCharacterZeroIsRefused)
{
    EXPECT_TRUE(rechazo({0, TipoColumna::Memo, 0, false, u"memo1"_s}, texto(QStringView{u"a\0b", 3})).contains(u"memo1"));
    EXPECT_FALSE(rechazo(marca(TipoColumna::Texto), texto(QStringView{u"a\0b", 3})).isEmpty());
}

TEST(Ligador, TextsBecomeNumbersAndDatesByTheRegionalSettings)
{
    EXPECT_EQ(ligado(marca(TipoColumna::Doble), texto(u"12,5")), Valor{12.5});
    EXPECT_EQ(ligado(marca(TipoColumna::Doble), texto(u"-1,05")), Valor{-1.05});
    EXPECT_EQ(ligado(marca(TipoColumna::Entero32), texto(u"3")), Valor{3});
    EXPECT_EQ(ligado(marca(TipoColumna::FechaHora), texto(u"05/03/2024")), Valor{*Fecha::deCalendario(2024, 3, 5)});
}

TEST(Ligador, NumbersBecomeTextsByTheRegionalSettings)
{
    EXPECT_EQ(ligado(marca(TipoColumna::Texto), numero(7)), Valor{u"7"_s});
    EXPECT_EQ(ligado(marca(TipoColumna::Texto), numero(12.5)), Valor{u"12,5"_s});
    EXPECT_EQ(ligado(marca(TipoColumna::Texto, true), numero(12.5)), Valor{u"-12,5"_s});
    EXPECT_EQ(ligado(marca(TipoColumna::Texto), fecha(*Fecha::deCalendario(2024, 3, 5))), Valor{u"05/03/2024"_s});
}

TEST(Ligador, SignsTurnTheNumber)
{
    EXPECT_EQ(ligado(marca(TipoColumna::Entero32, true), numero(5)), Valor{-5});
    EXPECT_EQ(ligado(marca(TipoColumna::Entero32, true), numero(2147483648.0)), Valor{qint32{-2147483647 - 1}});
    const Valor cero = ligado(marca(TipoColumna::Doble, true), numero(0));
    EXPECT_FALSE(std::signbit(cero.doble())) << "-0 is 0";
}

TEST(Ligador, DoublesForAnIntegerRoundHalfToEven)
{
    EXPECT_EQ(ligado({0, TipoColumna::Entero32, 0, false, u"c"_s}, numero(2.5)), Valor{2});
    EXPECT_EQ(ligado({0, TipoColumna::Entero16, 0, false, u"c"_s}, numero(3.5)), Valor{4});
}

TEST(Ligador, AFlagIsWrittenAsMinusOneOrZeroAndComparedAsItStands)
{
    EXPECT_EQ(ligado({0, TipoColumna::SiNo, 0, false, u"borrar"_s}, numero(1)), Valor{-1});
    EXPECT_EQ(ligado({0, TipoColumna::SiNo, 0, false, u"borrar"_s}, numero(0)), Valor{0});
    EXPECT_EQ(ligado(marca(TipoColumna::SiNo), numero(1)), Valor{1.0});
}

TEST(Ligador, OneLiteralMayServeSeveralMarks)
{
    const ConfiguracionRegional espania = ConfiguracionRegional::espania();
    Ligador ligador{espania};
    const Parametro marcas[] = {marca(TipoColumna::Entero32, false, 1), marca(TipoColumna::Texto, false, 0),
                                marca(TipoColumna::Doble, false, 1)};
    const Literal literales[] = {texto(u"a"), numero(2)};
    const auto valores = ligador.liga(marcas, literales);
    ASSERT_EQ(valores.size(), 3u);
    EXPECT_EQ(std::get<qint32>(valores[0]), 2);
    EXPECT_EQ(std::get<QStringView>(valores[1]), QStringView{u"a"});
    EXPECT_EQ(std::get<double>(valores[2]), 2.0);
}

} // namespace
} // namespace kestrane::database
