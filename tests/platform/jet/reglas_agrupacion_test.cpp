#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

void rehusa(const QString& sentencia, const QString& lugar)
{
    rehusaTraducir(sentencia, Clase::AgrupacionIncorrecta, lugar);
}

TEST(ReglasAgrupacionTest, RefusesColumnsBesideGroups)
{
    rehusa(u"select cliente, sum(total) from ventas"_s, u"cliente"_s);
    rehusa(u"select cliente, tienda, sum(total) from ventas group by cliente"_s, u"tienda"_s);
    rehusa(u"select * from ventas group by cliente"_s, u"*"_s);
    rehusa(u"select *, count(*) from ventas"_s, u"*"_s);
    rehusa(u"select cliente, sum(total) from ventas group by cliente order by numero"_s, u"numero"_s);
    rehusa(u"select cliente from ventas group by cliente having numero > 1"_s, u"numero"_s);
    rehusa(u"select numero from ventas having count(*) > 1"_s, u"numero"_s);
    rehusa(u"select numero from ventas having numero > 1"_s, u"numero > 1"_s);
    rehusa(u"select 1 from ventas having 1 = 1"_s, u"1 = 1"_s);
    rehusa(u"select month(fecha) from ventas group by year(fecha)"_s, u"fecha"_s);
    rehusa(u"select cliente + pago from ventas group by cliente"_s, u"pago"_s);
}

TEST(ReglasAgrupacionTest, RefusesGroupsOfFixedValues)
{
    rehusa(u"select count(*) from ventas group by 1"_s, u"1"_s);
    rehusa(u"select count(*) from ventas group by pago + 1"_s, u"pago + 1"_s);
    rehusa(u"select count(*) from ventas group by true"_s, u"true"_s);
    rehusa(u"select count(*) from clientes group by nombre & ' ' & apellidos"_s, u"nombre & ' ' & apellidos"_s);
    rehusa(u"select count(*) from ventas group by numero in (select codigo from lineas)"_s,
           u"numero in (select codigo from lineas)"_s);
}

TEST(ReglasAgrupacionTest, RefusesFixedValuesAsSortKeys)
{
    const auto rehusaClave = [](const QString& sentencia, const QString& lugar) {
        rehusaTraducir(sentencia, Clase::SintaxisIncorrecta, lugar);
    };
    rehusaClave(u"select numero from ventas order by 1"_s, u"1"_s);
    rehusaClave(u"select tienda, count(*) from ventas group by tienda order by 2"_s, u"2"_s);
    rehusaClave(u"select count(*) from ventas order by 1 + 1"_s, u"1 + 1"_s);
    rehusaClave(u"select numero from ventas order by null"_s, u"null"_s);
}

TEST(ReglasAgrupacionTest, ExpressionsOfGroupsAndAggregatesAreShown)
{
    for (const QString& buena :
         {u"select Cliente, sum(total) from ventas group by VENTAS.cliente"_s,
          u"select month(fecha) + 1, count(*) from ventas group by month(fecha)"_s,
          u"select cliente * 2 + sum(total) from ventas group by cliente"_s,
          u"select sum(total) from ventas group by cliente having cliente > 1 and count(*) > 2 order by max(fecha)"_s,
          u"select cliente from ventas group by cliente having cliente in (select codigo from clientes)"_s,
          u"select tienda is null, count(*) from ventas group by tienda is null order by tienda is null desc"_s,
          u"select pago = cliente, -sum(total) from ventas group by pago = cliente order by -sum(total)"_s,
          u"select distinct tienda, sum(total) from ventas group by tienda order by sum(total)"_s,
          u"select count(*) + 1, 'x' from ventas"_s})
        EXPECT_TRUE(traduce(buena).bien()) << qPrintable(sqlDe(buena, Motor::Sqlite));
}

TEST(ReglasAgrupacionTest, ATextGroupIsSpelledAsItsOldestRow)
{
    EXPECT_EQ(sqlDe(u"select tienda, count(*) from ventas group by tienda"_s, Motor::Sqlite),
              u"SELECT SUBSTR(MIN(printf('%020d', t0.\"rowid\") || t0.\"tienda\"), 21), COUNT(*) FROM \"ventas\" AS t0 "
              "GROUP BY t0.\"tienda\" COLLATE ESPANOL ORDER BY t0.\"tienda\" COLLATE ESPANOL"_s);
}

TEST(ReglasAgrupacionTest, DistinctTextsAreGroupsToo)
{
    EXPECT_EQ(sqlDe(u"select distinct tienda, pago from ventas"_s, Motor::Sqlite),
              u"SELECT SUBSTR(MIN(printf('%020d', t0.\"rowid\") || t0.\"tienda\"), 21), t0.\"pago\" FROM \"ventas\" AS t0 "
              "GROUP BY t0.\"tienda\" COLLATE ESPANOL, t0.\"pago\" ORDER BY t0.\"tienda\" COLLATE ESPANOL, t0.\"pago\""_s);
    EXPECT_EQ(sqlDe(u"select distinct pago from ventas"_s, Motor::Sqlite),
              u"SELECT DISTINCT t0.\"pago\" FROM \"ventas\" AS t0 ORDER BY 1"_s);
    EXPECT_EQ(sqlDe(u"select distinct tienda & 'x' as a from ventas"_s, Motor::Sqlite),
              u"SELECT DISTINCT (ifnull(t0.\"tienda\", '') || ?) COLLATE ESPANOL FROM \"ventas\" AS t0 ORDER BY 1"_s);
}

TEST(ReglasAgrupacionTest, DistinctOverOneRowOrOverGroupsIsLeftToTheEngine)
{
    EXPECT_EQ(sqlDe(u"select distinct count(*) from ventas"_s, Motor::Sqlite), u"SELECT COUNT(*) FROM \"ventas\" AS t0"_s);
    EXPECT_EQ(sqlDe(u"select distinct count(*) from ventas group by pago"_s, Motor::Sqlite),
              u"SELECT DISTINCT COUNT(*) FROM \"ventas\" AS t0 GROUP BY t0.\"pago\" ORDER BY 1"_s);
}

} // namespace
} // namespace kestrane::jet
