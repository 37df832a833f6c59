#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

void condicion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(condicionDe(jet, Motor::MariaDb), esperada);
}

void expresion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(expresionDe(jet, Motor::MariaDb), esperada);
}

TEST(RendererMariadbTest, NamesStandBetweenBackQuotesAndMarksAreBare)
{
    condicion(u"codigo = 5 and nombre = 'Ana'"_s, u"t0.`codigo` = ? AND t0.`nombre` = ?"_s);
}

TEST(RendererMariadbTest, TheCollationStandsOnlyWhereNoColumnBringsIt)
{
    condicion(u"'a' = 'A'"_s, u"? COLLATE utf8mb4_uca1400_spanish_nopad_as_ci = ?"_s);
    condicion(u"codigo & 'x' = '7X'"_s,
              u"(CONCAT(IFNULL(CAST(t0.`codigo` AS CHAR), ''), ?)) COLLATE utf8mb4_uca1400_spanish_nopad_as_ci = ?"_s);
}

TEST(RendererMariadbTest, LikeEscapesByACharacterThatNoTextHolds)
{
    condicion(u"nombre like '%a'"_s, u"t0.`nombre` LIKE ? ESCAPE CHAR(1)"_s);
    condicion(u"nombre not like '%a'"_s, u"t0.`nombre` NOT LIKE ? ESCAPE CHAR(1)"_s);
    condicion(u"codigo like '7%'"_s,
              u"CAST(t0.`codigo` AS CHAR) COLLATE utf8mb4_uca1400_spanish_nopad_as_ci LIKE ? ESCAPE CHAR(1)"_s);
}

TEST(RendererMariadbTest, ADivisionByZeroIsAnErrorAndNoNull)
{
    expresion(u"total / pago"_s,
              u"LEAST(CAST(t0.`total` AS DOUBLE), IF(CAST(t0.`pago` AS DOUBLE) = 0, POW(0, -1), 1.7976931348623157E308)) / "
              "CAST(t0.`pago` AS DOUBLE)"_s);
    expresion(u"total \\ pago"_s, u"LEAST((CAST(ROUND(CAST(t0.`total` AS DOUBLE)) AS SIGNED) * 4294967296 DIV 4294967296), "
                                  "IF(t0.`pago` = 0, CAST(POW(0, -1) AS SIGNED), 2147483647)) DIV t0.`pago`"_s);
    expresion(u"numero mod 2"_s, u"LEAST(t0.`numero`, IF(? = 0, CAST(POW(0, -1) AS SIGNED), 2147483647)) MOD ?"_s);
    expresion(u"-(total / pago)"_s,
              u"-(LEAST(CAST(t0.`total` AS DOUBLE), IF(CAST(t0.`pago` AS DOUBLE) = 0, POW(0, -1), 1.7976931348623157E308)) / "
              "CAST(t0.`pago` AS DOUBLE))"_s);
}

TEST(RendererMariadbTest, ValuesAsTexts)
{
    expresion(u"total & ''"_s, u"CONCAT(IFNULL(REPLACE(SFORMAT('{:.15G}', CAST(t0.`total` AS DOUBLE) + 0e0), '.', ','), ''), ?)"_s);
    expresion(u"fecha & ''"_s,
              u"CONCAT(IFNULL(DATE_FORMAT(t0.`fecha`, CASE WHEN DATE(t0.`fecha`) = '1899-12-30' THEN '%k:%i:%s' WHEN "
              "TIME(t0.`fecha`) = '00:00:00' THEN '%d/%m/%Y' ELSE '%d/%m/%Y %k:%i:%s' END), ''), ?)"_s);
}

TEST(RendererMariadbTest, PartsOfDatesAndConditionsAsValues)
{
    expresion(u"year(fecha) + month(fecha) + day(fecha) + hour(hora)"_s,
              u"YEAR(t0.`fecha`) + MONTH(t0.`fecha`) + DAY(t0.`fecha`) + HOUR(t0.`hora`)"_s);
    expresion(u"pago = 1"_s, u"-(t0.`pago` = ?)"_s);
}

TEST(RendererMariadbTest, ALimitedSubqueryStandsInsideAnother)
{
    condicion(
        u"codigo in (select top 2 cliente from ventas order by total)"_s,
        u"t0.`codigo` IN (SELECT * FROM (SELECT t1.`cliente` FROM `ventas` AS t1 ORDER BY t1.`total`, t1.`orden_` LIMIT ?) AS "
        "limitada)"_s);
    condicion(u"codigo in (select cliente from ventas)"_s, u"t0.`codigo` IN (SELECT t1.`cliente` FROM `ventas` AS t1)"_s);
}

TEST(RendererMariadbTest, Aggregates)
{
    EXPECT_EQ(sqlDe(u"select sum(pago), avg(pago), count(*) from ventas"_s, Motor::MariaDb),
              u"SELECT SUM(CAST(t0.`pago` AS DOUBLE)), AVG(CAST(t0.`pago` AS DOUBLE)), COUNT(*) FROM `ventas` AS t0"_s);
    EXPECT_EQ(sqlDe(u"select tienda from ventas group by tienda"_s, Motor::MariaDb),
              u"SELECT SUBSTR(MIN(CONCAT(LPAD(t0.`orden_`, 20, '0'), t0.`tienda`)), 21) FROM `ventas` AS t0 "
              "GROUP BY t0.`tienda` ORDER BY t0.`tienda`"_s);
}

TEST(RendererMariadbTest, NullsComeFirstByThemselves)
{
    EXPECT_EQ(sqlDe(u"select nombre from clientes order by nacimiento, nombre desc"_s, Motor::MariaDb).section(u" ORDER BY "_s, 1),
              u"t0.`nacimiento`, t0.`nombre` DESC, t0.`orden_`"_s);
}

TEST(RendererMariadbTest, ADoubleIsLookedForAmongDoubles)
{
    EXPECT_EQ(condicionDe(u"total in (select numero from ventas)"_s, Motor::MariaDb, u"ventas"_s),
              u"t0.`total` IN (SELECT CAST(t1.`numero` AS DOUBLE) FROM `ventas` AS t1)"_s);
    EXPECT_EQ(condicionDe(u"numero in (select total from ventas)"_s, Motor::MariaDb, u"ventas"_s),
              u"t0.`numero` IN (SELECT t1.`total` FROM `ventas` AS t1)"_s);
}

} // namespace
} // namespace kestrane::jet
