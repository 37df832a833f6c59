#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

void condicion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(condicionDe(jet, Motor::PostgreSql), esperada);
}

void expresion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(expresionDe(jet, Motor::PostgreSql), esperada);
}

TEST(RendererPostgresqlTest, MarksSayTheirType)
{
    condicion(u"codigo = 5"_s, u"t0.\"codigo\" = CAST(? AS integer)"_s);
    condicion(u"codigo < 5.5"_s, u"t0.\"codigo\" < CAST(? AS double precision)"_s);
    condicion(u"nacimiento = #03/15/2024#"_s, u"t0.\"nacimiento\" = CAST(? AS timestamp)"_s);
    EXPECT_EQ(
        sqlDe(u"update ventas set pago = 1, borrar = 0, tienda = 'x' where numero = 7"_s, Motor::PostgreSql),
        u"UPDATE \"ventas\" SET \"pago\" = CAST(? AS smallint), \"borrar\" = CAST(? AS smallint), \"tienda\" = CAST(? AS text) "
        "WHERE \"ventas\".\"numero\" = CAST(? AS integer)"_s);
}

TEST(RendererPostgresqlTest, TheCollationStandsOnlyWhereNoColumnBringsIt)
{
    condicion(u"nombre = 'Ana'"_s, u"t0.\"nombre\" = CAST(? AS text)"_s);
    condicion(u"'Ana' = nombre"_s, u"CAST(? AS text) = t0.\"nombre\""_s);
    condicion(u"'a' = 'A'"_s, u"CAST(? AS text) COLLATE \"espanol\" = CAST(? AS text)"_s);
    condicion(u"nombre & 'x' = 'Y'"_s, u"(COALESCE(t0.\"nombre\", '') || CAST(? AS text)) = CAST(? AS text)"_s);
    condicion(u"codigo & 'x' in ('7X')"_s,
              u"(COALESCE(CAST(t0.\"codigo\" AS text), '') || CAST(? AS text)) COLLATE \"espanol\" IN (CAST(? AS text))"_s);
    condicion(u"'a' in (select tipo from lineas)"_s, u"CAST(? AS text) IN (SELECT t1.\"tipo\" FROM \"lineas\" AS t1)"_s);
}

TEST(RendererPostgresqlTest, LikeMindsNoCaseAndKnowsNoEscape)
{
    condicion(u"nombre like '%a'"_s, u"t0.\"nombre\" COLLATE \"es-x-icu\" ILIKE CAST(? AS text) COLLATE \"es-x-icu\" ESCAPE ''"_s);
    condicion(u"nombre not like '%a' & apellidos"_s,
              u"t0.\"nombre\" COLLATE \"es-x-icu\" NOT ILIKE (CAST(? AS text) || COALESCE(t0.\"apellidos\", '')) "
              "COLLATE \"es-x-icu\" ESCAPE ''"_s);
}

TEST(RendererPostgresqlTest, WholeNumbersAreCountedIn64BitsAndTheRestInDoubles)
{
    expresion(u"pago + 1"_s, u"CAST(t0.\"pago\" AS bigint) + CAST(? AS bigint)"_s);
    expresion(u"(pago + numero) * 2"_s, u"(CAST(t0.\"pago\" AS bigint) + CAST(t0.\"numero\" AS bigint)) * CAST(? AS bigint)"_s);
    expresion(u"total + 1 - pago"_s, u"t0.\"total\" + CAST(? AS double precision) - CAST(t0.\"pago\" AS double precision)"_s);
    expresion(u"numero / 2"_s, u"CAST(t0.\"numero\" AS double precision) / CAST(? AS double precision)"_s);
    expresion(
        u"total \\ 2 mod 3"_s,
        u"CAST(CAST(CAST(CAST(t0.\"total\" AS integer) AS bigint) / CAST(? AS bigint) AS integer) AS bigint) % CAST(? AS bigint)"_s);
}

TEST(RendererPostgresqlTest, ANullOfASubqueryHasTheTypeItIsComparedWith)
{
    condicion(u"codigo in (select null from lineas)"_s, u"t0.\"codigo\" IN (SELECT CAST(NULL AS integer) FROM \"lineas\" AS t1)"_s);
    condicion(u"nombre not in (select null from lineas)"_s,
              u"t0.\"nombre\" NOT IN (SELECT CAST(NULL AS text) FROM \"lineas\" AS t1)"_s);
}

TEST(RendererPostgresqlTest, ASumOfANullOfNoTypeIsANumber)
{
    EXPECT_EQ(sqlDe(u"select sum(null) as s, avg(null) as m from ventas"_s, Motor::PostgreSql),
              u"SELECT CAST(SUM(CAST(NULL AS double precision)) AS double precision), CAST(AVG(CAST(NULL AS double precision)) AS "
              "double precision) FROM \"ventas\" AS t0"_s);
}

TEST(RendererPostgresqlTest, AMarkInADoubleCountIsADouble)
{
    const auto parametros =
        traduce(u"select total + 1 as x from ventas where pago + 1 = 2"_s, Motor::PostgreSql).valor().parametros;
    EXPECT_EQ(parametros[0].tipo, TipoColumna::Doble);
    EXPECT_EQ(parametros[1].tipo, TipoColumna::Entero32);
}

TEST(RendererPostgresqlTest, ConditionsAsValuesAndPartsOfDates)
{
    expresion(u"pago = 1"_s, u"-CAST((t0.\"pago\" = CAST(? AS integer)) AS integer)"_s);
    expresion(u"year(fecha)"_s, u"CAST(EXTRACT(YEAR FROM t0.\"fecha\") AS integer)"_s);
    expresion(u"month(fecha)"_s, u"CAST(EXTRACT(MONTH FROM t0.\"fecha\") AS integer)"_s);
    expresion(u"day(fecha)"_s, u"CAST(EXTRACT(DAY FROM t0.\"fecha\") AS integer)"_s);
    expresion(u"hour(hora)"_s, u"CAST(EXTRACT(HOUR FROM t0.\"hora\") AS integer)"_s);
    condicion(u"codigo"_s, u"t0.\"codigo\" <> 0"_s);
}

TEST(RendererPostgresqlTest, NumbersAndDatesAsTextsAreTheRegionalOnes)
{
    expresion(u"numero & ''"_s, u"COALESCE(CAST(t0.\"numero\" AS text), '') || CAST(? AS text)"_s);
    expresion(
        u"total & ''"_s,
        u"COALESCE(REPLACE(CASE WHEN CAST(t0.\"total\" AS numeric) = 0 OR ABS(CAST(t0.\"total\" AS numeric)) BETWEEN 0.0001 AND "
        "999999999999999 THEN CAST(TRIM_SCALE(CAST(t0.\"total\" AS numeric)) AS text) ELSE "
        "REGEXP_REPLACE(TRIM(TO_CHAR(CAST(t0.\"total\" AS numeric), '9.99999999999999EEEE')), '[.]{0,1}0*e', 'E') END, '.', ','), "
        "'') "
        "|| "
        "CAST(? AS text)"_s);
    expresion(u"fecha & ''"_s, u"COALESCE(CASE WHEN CAST(t0.\"fecha\" AS date) = DATE '1899-12-30' THEN TO_CHAR(t0.\"fecha\", "
                               "'FMHH24:MI:SS') WHEN CAST(t0.\"fecha\" AS time) = TIME '00:00:00' THEN TO_CHAR(t0.\"fecha\", "
                               "'DD/MM/YYYY') ELSE TO_CHAR(t0.\"fecha\", 'DD/MM/YYYY FMHH24:MI:SS') END, '') || CAST(? AS text)"_s);
}

TEST(RendererPostgresqlTest, Aggregates)
{
    EXPECT_EQ(sqlDe(u"select sum(pago), avg(pago), count(*), max(nombre), min('x') from ventas, clientes"_s, Motor::PostgreSql),
              u"SELECT CAST(SUM(t0.\"pago\") AS double precision), CAST(AVG(t0.\"pago\") AS double precision), COUNT(*), "
              "MAX(t1.\"nombre\"), MIN(CAST(? AS text) COLLATE \"espanol\") FROM \"ventas\" AS t0, \"clientes\" AS t1"_s);
    EXPECT_EQ(sqlDe(u"select tienda from ventas group by tienda"_s, Motor::PostgreSql),
              u"SELECT SUBSTR(MIN(LPAD(CAST(t0.\"orden_\" AS text), 20, '0') || t0.\"tienda\"), 21) FROM \"ventas\" AS t0 "
              "GROUP BY t0.\"tienda\" ORDER BY t0.\"tienda\" NULLS FIRST"_s);
}

TEST(RendererPostgresqlTest, TopIsALimit)
{
    EXPECT_EQ(sqlDe(u"select top 20 numero from ventas order by numero desc"_s, Motor::PostgreSql),
              u"SELECT t0.\"numero\", t0.\"orden_\" FROM \"ventas\" AS t0 ORDER BY t0.\"numero\" DESC, t0.\"orden_\" "
              "LIMIT CAST(? AS integer)"_s);
}

} // namespace
} // namespace kestrane::jet
