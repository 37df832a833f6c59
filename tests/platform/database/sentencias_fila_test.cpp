#include "platform/database/sentencias_fila.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;
using jet::Motor;
using jet::TipoColumna;

jet::Tabla tabla()
{
    jet::Tabla informes;
    informes.nombre = u"informes"_s;
    informes.columnas = {{u"texto1"_s, TipoColumna::Texto, 255, true}, {u"raro\"`"_s, TipoColumna::Doble, 0, true}};
    informes.identidad = u"rowid"_s;
    return informes;
}

TEST(SentenciasFila, NamesAreQuotedByTheEnginesRules)
{
    const int columnas[] = {1, 0};
    EXPECT_EQ(sqlInsercion(Motor::Sqlite, tabla(), columnas), "insert into \"informes\" (\"raro\"\"`\", \"texto1\") values (?, ?)");
    EXPECT_EQ(sqlInsercion(Motor::MariaDb, tabla(), columnas), "insert into `informes` (`raro\"```, `texto1`) values (?, ?)");
    EXPECT_EQ(sqlModificacion(Motor::PostgreSql, tabla(), columnas),
              "update \"informes\" set \"raro\"\"`\" = ?, \"texto1\" = ? where \"rowid\" = cast(? as bigint)");
    EXPECT_EQ(sqlBorrado(Motor::Sqlite, tabla()), "delete from \"informes\" where \"rowid\" = ?");
}

TEST(SentenciasFila, ARowWithoutColumnsIsOneOfDefaults)
{
    EXPECT_EQ(sqlInsercion(Motor::Sqlite, tabla(), {}), "insert into \"informes\" default values");
    EXPECT_EQ(sqlInsercion(Motor::MariaDb, tabla(), {}), "insert into `informes` () values ()");
}

TEST(SentenciasFila, ServersAreToldThatAHiddenIdentityIsWhole)
{
    jet::Tabla porClave = tabla();
    porClave.identidad = u"orden_"_s;
    EXPECT_EQ(sqlBorrado(Motor::PostgreSql, porClave), "delete from \"informes\" where \"orden_\" = cast(? as bigint)");
    EXPECT_EQ(sqlBorrado(Motor::MariaDb, porClave), "delete from `informes` where `orden_` = cast(? as signed)");
    porClave.identidad = u"texto1"_s;
    EXPECT_EQ(sqlBorrado(Motor::MariaDb, porClave), "delete from `informes` where `texto1` = ?");
}

TEST(SentenciasFila, TheIdentityHasTheTypeOfItsColumnOrIsANumberOfAnySize)
{
    jet::Tabla porClave = tabla();
    EXPECT_EQ(tipoDeIdentidad(porClave), TipoColumna::Doble);
    porClave.identidad = u"texto1"_s;
    EXPECT_EQ(tipoDeIdentidad(porClave), TipoColumna::Texto);
}

TEST(SentenciasFila, TruthsOfTheEnginesOwnAreConditions)
{
    jet::Tabla socios = tabla();
    socios.columnas.push_back({u"activo"_s, TipoColumna::SiNo, 0, true, true});
    const int columnas[] = {2, 0};
    EXPECT_EQ(sqlInsercion(Motor::PostgreSql, socios, columnas),
              "insert into \"informes\" (\"activo\", \"texto1\") values (cast(? as smallint) <> 0, ?)");
    EXPECT_EQ(sqlModificacion(Motor::MariaDb, socios, columnas),
              "update `informes` set `activo` = ? <> 0, `texto1` = ? where `rowid` = cast(? as signed)");
}

} // namespace
} // namespace kestrane::database
