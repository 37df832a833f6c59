#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

void condicion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(condicionDe(jet, Motor::Sqlite), esperada);
}

void expresion(const QString& jet, const QString& esperada)
{
    EXPECT_EQ(expresionDe(jet, Motor::Sqlite), esperada);
}

TEST(RendererSqliteTest, TextsAreComparedByTheCollation)
{
    condicion(u"nombre = 'Ana'"_s, u"t0.\"nombre\" COLLATE ESPANOL = ?"_s);
    condicion(u"nombre <> apellidos"_s, u"t0.\"nombre\" COLLATE ESPANOL <> t0.\"apellidos\""_s);
    condicion(u"'b' >= nombre"_s, u"? COLLATE ESPANOL >= t0.\"nombre\""_s);
    condicion(u"nombre between 'a' and 'm'"_s, u"t0.\"nombre\" COLLATE ESPANOL BETWEEN ? AND ?"_s);
    condicion(u"nombre not in ('a','b')"_s, u"t0.\"nombre\" COLLATE ESPANOL NOT IN (?, ?)"_s);
    condicion(u"nombre in (select tipo from lineas)"_s,
              u"t0.\"nombre\" COLLATE ESPANOL IN (SELECT t1.\"tipo\" FROM \"lineas\" AS t1)"_s);
    condicion(u"nombre & apellidos = 'x'"_s, u"(ifnull(t0.\"nombre\", '') || ifnull(t0.\"apellidos\", '')) COLLATE ESPANOL = ?"_s);
}

TEST(RendererSqliteTest, NumbersAndDatesNeedNoCollation)
{
    condicion(u"codigo = 5 and nacimiento > #03/15/2024#"_s, u"t0.\"codigo\" = ? AND t0.\"nacimiento\" > ?"_s);
}

TEST(RendererSqliteTest, LikeIsTheConnectionsOwn)
{
    condicion(u"nombre like '%a'"_s, u"t0.\"nombre\" LIKE ?"_s);
    condicion(u"not nombre not like 'a' & '%'"_s, u"NOT t0.\"nombre\" NOT LIKE (? || ?)"_s);
}

TEST(RendererSqliteTest, FunctionsAreTheConnectionsOwn)
{
    expresion(u"year(fecha) + month(fecha) + day(fecha) + hour(hora)"_s,
              u"anio(t0.\"fecha\") + mes(t0.\"fecha\") + dia(t0.\"fecha\") + hora(t0.\"hora\")"_s);
    expresion(u"total / 2 \\ 3 mod 4"_s, u"resto(division_entera(division(t0.\"total\", ?), ?), ?)"_s);
}

TEST(RendererSqliteTest, JoiningTakesNullForTheEmptyText)
{
    expresion(u"tienda & ' ' & total"_s, u"ifnull(t0.\"tienda\", '') || ? || ifnull(texto(t0.\"total\"), '')"_s);
    expresion(u"fecha & null"_s, u"ifnull(texto_fecha(t0.\"fecha\"), '') || ifnull(NULL, '')"_s);
    expresion(u"borrar & ''"_s,
              u"ifnull(CASE t0.\"borrar\" <> 0 WHEN TRUE THEN 'Verdadero' WHEN FALSE THEN 'Falso' END, '') || ?"_s);
}

TEST(RendererSqliteTest, MaximaOfTextsGoByTheCollation)
{
    EXPECT_EQ(sqlDe(u"select max(nombre), min(codigo), sum(codigo), avg(codigo), count(nombre) from clientes"_s, Motor::Sqlite),
              u"SELECT MAX(t0.\"nombre\" COLLATE ESPANOL), MIN(t0.\"codigo\"), SUM(t0.\"codigo\"), AVG(t0.\"codigo\"), "
              "COUNT(t0.\"nombre\") FROM \"clientes\" AS t0"_s);
}

} // namespace
} // namespace kestrane::jet
