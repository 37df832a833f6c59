#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

TEST(RendererConsultaTest, Joins)
{
    EXPECT_EQ(sqlDe(u"select c.nombre from (ventas v inner join lineas l on numero = num_venta) left join clientes c on cliente = "
                    "c.codigo, sinclave s group by c.nombre"_s,
                    Motor::Sqlite)
                  .section(u" FROM "_s, 1)
                  .section(u" GROUP "_s, 0, 0),
              u"\"ventas\" AS t0 INNER JOIN \"lineas\" AS t1 ON t0.\"numero\" = t1.\"num_venta\" LEFT JOIN \"clientes\" AS t2 ON "
              "t0.\"cliente\" = t2.\"codigo\", \"sinclave\" AS t3"_s);
    EXPECT_EQ(
        sqlDe(
            u"select sum(total) from ventas left join (lineas inner join clientes c on lineas.codigo = c.codigo) on numero = num_venta"_s,
            Motor::Sqlite),
        u"SELECT SUM(t0.\"total\") FROM \"ventas\" AS t0 LEFT JOIN ((SELECT \"rowid\" AS \"rowid\", * FROM \"lineas\") AS t1 INNER "
        "JOIN (SELECT \"rowid\" AS \"rowid\", * FROM \"clientes\") AS t2 ON t1.\"codigo\" = t2.\"codigo\") ON t0.\"numero\" = "
        "t1.\"num_venta\""_s);
}

TEST(RendererConsultaTest, AQueryOfOneTableGivesItsIdentityLast)
{
    EXPECT_EQ(sqlDe(u"select top 2 nombre from clientes where codigo in (1) order by nombre desc"_s, Motor::Sqlite),
              u"SELECT t0.\"nombre\", t0.\"rowid\" FROM \"clientes\" AS t0 WHERE t0.\"codigo\" IN (?) "
              "ORDER BY t0.\"nombre\" COLLATE ESPANOL DESC, t0.\"rowid\" LIMIT ?"_s);
}

TEST(RendererConsultaTest, NullsComeFirstAscendingAndLastDescending)
{
    EXPECT_EQ(sqlDe(u"select nombre from clientes order by nacimiento, nombre desc, codigo"_s, Motor::PostgreSql)
                  .section(u" ORDER BY "_s, 1),
              u"t0.\"nacimiento\" NULLS FIRST, t0.\"nombre\" DESC NULLS LAST, t0.\"codigo\", t0.\"orden_\""_s);
    EXPECT_EQ(sqlDe(u"select distinct pago from ventas"_s, Motor::PostgreSql).section(u" ORDER BY "_s, 1), u"1 NULLS FIRST"_s);
}

TEST(RendererConsultaTest, AColumnThatIsNeverNullMayBeSoBehindALeftJoin)
{
    EXPECT_EQ(sqlDe(u"select total from ventas left join clientes on cliente = codigo order by codigo"_s, Motor::PostgreSql)
                  .section(u" ORDER BY "_s, 1),
              u"t1.\"codigo\" NULLS FIRST, t0.\"orden_\", t1.\"orden_\""_s);
}

TEST(RendererConsultaTest, NoKeyStandsTwice)
{
    EXPECT_EQ(sqlDe(u"select numero from ventas order by numero, total, NUMERO desc"_s, Motor::Sqlite).section(u" ORDER BY "_s, 1),
              u"t0.\"numero\", t0.\"total\", t0.\"rowid\""_s);
    EXPECT_EQ(sqlDe(u"select distinct pago, pago as p from ventas order by pago"_s, Motor::Sqlite).section(u" ORDER BY "_s, 1),
              u"1, 2"_s);
}

TEST(RendererConsultaTest, TablesOfAJoinInParenthesesKeepTheirRowNumbersOnSqlite)
{
    const QString jet =
        u"select numero from ventas left join (lineas l inner join clientes c on l.codigo = c.codigo) on numero = num_venta"_s;
    EXPECT_EQ(sqlDe(jet, Motor::Sqlite),
              u"SELECT t0.\"numero\" FROM \"ventas\" AS t0 LEFT JOIN ((SELECT \"rowid\" AS \"rowid\", * FROM \"lineas\") AS t1 "
              "INNER JOIN (SELECT \"rowid\" AS \"rowid\", * FROM \"clientes\") AS t2 ON t1.\"codigo\" = t2.\"codigo\") ON "
              "t0.\"numero\" = t1.\"num_venta\" ORDER BY t0.\"rowid\", t1.\"rowid\", t2.\"rowid\""_s);
    EXPECT_EQ(sqlDe(jet, Motor::MariaDb),
              u"SELECT t0.`numero` FROM `ventas` AS t0 LEFT JOIN (`lineas` AS t1 INNER JOIN `clientes` AS t2 ON t1.`codigo` = "
              "t2.`codigo`) ON t0.`numero` = t1.`num_venta` ORDER BY t0.`orden_`, t1.`orden_`, t2.`orden_`"_s);
}

} // namespace
} // namespace kestrane::jet
