#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

/// The type of an expression over "ventas" as a result column.
QString tipoDe(const QString& expresion)
{
    const auto traduccion = traduce(u"select %1 as x from ventas"_s.arg(expresion));
    return traduccion ? QString(nombreDeTipo(traduccion.valor().columnas.front().tipo)) : traduccion.error().mensaje;
}

void rehusa(const QString& condicion, Clase clase, const QString& lugar)
{
    rehusaTraducir(u"select * from ventas where "_s + condicion, clase, lugar);
}

TEST(BinderExpresionTest, RefusesArithmeticOnOtherThanNumbers)
{
    rehusa(u"tienda + 1 = 2"_s, Clase::TiposIncompatibles, u"tienda"_s);
    rehusa(u"total * '2' > 1"_s, Clase::TiposIncompatibles, u"'2'"_s);
    rehusa(u"fecha + 1 = fecha"_s, Clase::TiposIncompatibles, u"fecha"_s);
    rehusa(u"-tienda = 'x'"_s, Clase::TiposIncompatibles, u"tienda"_s);
    rehusa(u"+'x' = 'x'"_s, Clase::TiposIncompatibles, u"'x'"_s);
}

TEST(BinderExpresionTest, RefusesSubqueriesOfOtherThanOneColumn)
{
    rehusa(u"cliente in (select codigo, nombre from clientes)"_s, Clase::SintaxisIncorrecta,
           u"select codigo, nombre from clientes"_s);
    rehusa(u"cliente in (select * from clientes)"_s, Clase::SintaxisIncorrecta, u"select * from clientes"_s);
    rehusa(u"cliente in (select nacimiento from clientes)"_s, Clase::TiposIncompatibles, u"nacimiento"_s);
    rehusa(u"'3' in (select codigo from clientes)"_s, Clase::TiposIncompatibles, u"'3'"_s);
}

TEST(BinderExpresionTest, EachExpressionHasItsType)
{
    EXPECT_EQ(tipoDe(u"numero"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"pago"_s), u"INTEGER"_s);
    EXPECT_EQ(tipoDe(u"tienda"_s), u"TEXT"_s);
    EXPECT_EQ(tipoDe(u"borrar"_s), u"YESNO"_s);
    EXPECT_EQ(tipoDe(u"5"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"5.0"_s), u"DOUBLE"_s);
    EXPECT_EQ(tipoDe(u"'x'"_s), u"TEXT"_s);
    EXPECT_EQ(tipoDe(u"#03/15/2024#"_s), u"DATETIME"_s);
    EXPECT_EQ(tipoDe(u"false"_s), u"YESNO"_s);
    EXPECT_EQ(tipoDe(u"pago + 1"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"pago + total"_s), u"DOUBLE"_s);
    EXPECT_EQ(tipoDe(u"pago / 2"_s), u"DOUBLE"_s);
    EXPECT_EQ(tipoDe(u"total \\ 2"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"total mod 2"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"-pago"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"-total"_s), u"DOUBLE"_s);
    EXPECT_EQ(tipoDe(u"total & ''"_s), u"TEXT"_s);
    EXPECT_EQ(tipoDe(u"total > 5"_s), u"YESNO"_s);
    EXPECT_EQ(tipoDe(u"month(fecha)"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"count(*)"_s), u"LONG"_s);
    EXPECT_EQ(tipoDe(u"sum(pago)"_s), u"DOUBLE"_s);
    EXPECT_EQ(tipoDe(u"avg(pago)"_s), u"DOUBLE"_s);
    EXPECT_EQ(tipoDe(u"max(fecha)"_s), u"DATETIME"_s);
    EXPECT_EQ(tipoDe(u"min(tienda)"_s), u"TEXT"_s);
    EXPECT_EQ(tipoDe(u"max(numero)"_s), u"LONG"_s);
}

TEST(BinderExpresionTest, NotEqualToNullAsksForAValue)
{
    EXPECT_EQ(condicionDe(u"nombre <> null"_s, Motor::Sqlite), u"t0.\"nombre\" IS NOT NULL"_s);
    EXPECT_EQ(condicionDe(u"null <> nombre"_s, Motor::Sqlite), u"t0.\"nombre\" IS NOT NULL"_s);
    EXPECT_EQ(condicionDe(u"codigo = null"_s, Motor::Sqlite), u"t0.\"codigo\" = NULL"_s);
}

TEST(BinderExpresionTest, LiteralsKeepTheirOwnTypeInComparisonsOfNumbers)
{
    const auto traduccion = traduce(u"select * from ventas where pago = 99999 and numero = 2.5"_s);
    ASSERT_TRUE(traduccion.bien());
    EXPECT_EQ(traduccion.valor().parametros[0], (Parametro{0, TipoColumna::Entero32, 0, false, {}}));
    EXPECT_EQ(traduccion.valor().parametros[1], (Parametro{1, TipoColumna::Doble, 0, false, {}}));
}

TEST(BinderExpresionTest, SignsBeforeALiteralTurnIt)
{
    const auto negado = [](const QString& valor) {
        return traduce(u"select * from ventas where total = "_s + valor).valor().parametros.front().negado;
    };
    EXPECT_TRUE(negado(u"-5.5"_s));
    EXPECT_FALSE(negado(u"--5.5"_s));
    EXPECT_TRUE(negado(u"---5.5"_s));
    EXPECT_TRUE(negado(u"+-5.5"_s));
    EXPECT_TRUE(negado(u"-(5.5)"_s));
}

TEST(BinderExpresionTest, ArithmeticWithNullIsNull)
{
    EXPECT_EQ(expresionDe(u"total + null"_s, Motor::Sqlite), u"NULL"_s);
    EXPECT_EQ(expresionDe(u"-null"_s, Motor::Sqlite), u"NULL"_s);
    EXPECT_EQ(expresionDe(u"month(null)"_s, Motor::Sqlite), u"NULL"_s);
}

} // namespace
} // namespace kestrane::jet
