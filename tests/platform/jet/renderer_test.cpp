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

/// What becomes of a statement on a table whose column `activo` is of the engine's own type of truths.
QString conVerdades(const QString& sentencia, Motor motor)
{
    CatalogoPrueba catalogo;
    catalogo.anade(tablaDePrueba(u"socios"_s,
                                 {{u"codigo"_s, TipoColumna::Entero32},
                                  {.nombre = u"activo"_s, .tipo = TipoColumna::SiNo, .ancho = 0, .esVerdadDelMotor = true}},
                                 motor));
    const auto traduccion = Traductor{catalogo, motor, ConfiguracionRegional::espania()}.traduce(sentencia);
    return traduccion ? QString::fromUtf8(traduccion.valor().sql) : describe(traduccion.error(), sentencia);
}

TEST(RendererTest, ATruthOfTheEnginesOwnIsReadAsANumberAndWrittenAsACondition)
{
    const QString consulta = u"select count(*) as n from socios where activo = true"_s;
    EXPECT_EQ(conVerdades(consulta, Motor::PostgreSql),
              u"SELECT COUNT(*) FROM \"socios\" AS t0 WHERE (-CAST(t0.\"activo\" AS integer)) = -1"_s);
    EXPECT_EQ(conVerdades(consulta, Motor::MariaDb),
              u"SELECT COUNT(*) FROM `socios` AS t0 WHERE (-CAST(t0.`activo` AS SIGNED)) = -1"_s);
    EXPECT_EQ(conVerdades(u"insert into socios (activo,codigo) values (1,2)"_s, Motor::PostgreSql),
              u"INSERT INTO \"socios\" (\"activo\", \"codigo\") VALUES (CAST(? AS smallint) <> 0, CAST(? AS integer))"_s);
    EXPECT_EQ(conVerdades(u"update socios set activo = false"_s, Motor::MariaDb), u"UPDATE `socios` SET `activo` = 0 <> 0"_s);
    EXPECT_EQ(conVerdades(u"update socios set activo = codigo > 3"_s, Motor::MariaDb),
              u"UPDATE `socios` SET `activo` = -(`socios`.`codigo` > ?) <> 0"_s);
}

} // namespace
} // namespace kestrane::jet
