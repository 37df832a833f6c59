#include "platform/jet/renderer.h"

#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

TEST(RendererTest, OnlyQueriesGiveTheirTablesShortNames)
{
    EXPECT_EQ(sqlDe(u"select a.numero from ventas a"_s, Motor::Sqlite),
              u"SELECT t0.\"numero\", t0.\"rowid\" FROM \"ventas\" AS t0 ORDER BY t0.\"rowid\""_s);
    EXPECT_EQ(sqlDe(u"delete from ventas where numero in (select num_venta from lineas)"_s, Motor::Sqlite),
              u"DELETE FROM \"ventas\" WHERE \"ventas\".\"numero\" IN (SELECT t1.\"num_venta\" FROM \"lineas\" AS t1)"_s);
}

TEST(RendererTest, ThereAreAsManyMarksAsParameters)
{
    for (const Motor motor : {Motor::Sqlite, Motor::PostgreSql, Motor::MariaDb}) {
        const auto traduccion =
            traduce(
                u"select top 3 total / 2, borrar & 'a', (pago = 1) & 'b' from ventas where tienda in ('a','b') and total mod 3 = -1"_s,
                motor)
                .valor();
        EXPECT_EQ(traduccion.sql.count('?'), static_cast<qsizetype>(traduccion.parametros.size()));
    }
}

} // namespace
} // namespace kestrane::jet
