#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

void rehusa(const QString& condicion, Clase clase, const QString& lugar)
{
    rehusaTraducir(u"select * from ventas where "_s + condicion, clase, lugar);
}

TEST(ConversionesSqlTest, RefusesValuesWhereConditionsStand)
{
    rehusa(u"tienda"_s, Clase::TiposIncompatibles, u"tienda"_s);
    rehusa(u"'x'"_s, Clase::TiposIncompatibles, u"'x'"_s);
    rehusa(u"pago = 1 and fecha"_s, Clase::TiposIncompatibles, u"fecha"_s);
    rehusa(u"not tienda"_s, Clase::TiposIncompatibles, u"tienda"_s);
}

TEST(ConversionesSqlTest, RefusesComparisonsOfWhatCannotBeCompared)
{
    rehusa(u"total = '12,5'"_s, Clase::TiposIncompatibles, u"'12,5'"_s);
    rehusa(u"'7' = pago"_s, Clase::TiposIncompatibles, u"'7'"_s);
    rehusa(u"pago in (1, '2')"_s, Clase::TiposIncompatibles, u"'2'"_s);
    rehusa(u"total between 1 and '2'"_s, Clase::TiposIncompatibles, u"'2'"_s);
    rehusa(u"fecha = '15/03/2024'"_s, Clase::TiposIncompatibles, u"'15/03/2024'"_s);
    rehusa(u"fecha > 5"_s, Clase::TiposIncompatibles, u"5"_s);
    rehusa(u"fecha = tienda"_s, Clase::TiposIncompatibles, u"tienda"_s);
    rehusa(u"borrar = 'No'"_s, Clase::TiposIncompatibles, u"'No'"_s);
}

TEST(ConversionesSqlTest, ANumberIsTrueWhenItIsNotZero)
{
    EXPECT_EQ(condicionDe(u"codigo"_s, Motor::Sqlite), u"t0.\"codigo\" <> 0"_s);
    EXPECT_EQ(condicionDe(u"not codigo and true"_s, Motor::Sqlite), u"NOT t0.\"codigo\" <> 0 AND -1 <> 0"_s);
}

TEST(ConversionesSqlTest, AConditionIsMinusOneOrZeroAsAValue)
{
    EXPECT_EQ(condicionDe(u"(codigo = 1) = true"_s, Motor::Sqlite), u"-(t0.\"codigo\" = ?) = -1"_s);
    EXPECT_EQ(condicionDe(u"(nombre is null) + (codigo > 1) < -1"_s, Motor::Sqlite),
              u"-(t0.\"nombre\" IS NULL) + -(t0.\"codigo\" > ?) < ?"_s);
}

TEST(ConversionesSqlTest, ANumberComparedWithATextIsComparedAsText)
{
    const auto traduccion = traduce(u"select * from ventas where tienda = 12598"_s);
    ASSERT_TRUE(traduccion.bien());
    EXPECT_EQ(traduccion.valor().parametros.front().tipo, TipoColumna::Texto);
    EXPECT_EQ(condicionDe(u"codigo = nombre"_s, Motor::Sqlite), u"texto(t0.\"codigo\") COLLATE ESPANOL = t0.\"nombre\""_s);
    EXPECT_EQ(condicionDe(u"nombre in (1, codigo)"_s, Motor::Sqlite),
              u"t0.\"nombre\" COLLATE ESPANOL IN (?, texto(t0.\"codigo\"))"_s);
    EXPECT_EQ(condicionDe(u"codigo like '7%'"_s, Motor::Sqlite), u"texto(t0.\"codigo\") LIKE ?"_s);
}

} // namespace
} // namespace kestrane::jet
