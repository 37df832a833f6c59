#include "instalacion/ddl.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;
using jet::Motor;
using jet::TipoColumna;

constexpr ColumnaEsquema Columnas[] = {
    {"Numero"_L1, TipoColumna::Entero32, 0, Nulos::NoAdmite}, {"pago"_L1, TipoColumna::Entero16, 0, Nulos::Admite},
    {"total"_L1, TipoColumna::Doble, 0, Nulos::Admite},       {"hora"_L1, TipoColumna::FechaHora, 0, Nulos::Admite},
    {"tienda"_L1, TipoColumna::Texto, 50, Nulos::Admite},     {"memo1"_L1, TipoColumna::Memo, 0, Nulos::Admite},
    {"borrar"_L1, TipoColumna::SiNo, 0, Nulos::NoAdmite},
};
constexpr QLatin1StringView Indices[] = {"Hora"_L1, "tienda"_L1};
constexpr TablaEsquema Tablas[] = {{"Cabecera_X"_L1, Columnas, "Numero"_L1, Indices}};
constexpr BaseEsquema Base{"Prueba"_L1, Tablas};

std::string creacion(Motor motor)
{
    return sentenciasDeCreacion(Base, motor).join(u'\n').toStdString();
}

TEST(Ddl, OnSqliteTypesAreDeclaredPlainAndNothingIsARowNumber)
{
    EXPECT_EQ(creacion(Motor::Sqlite),
              "CREATE TABLE cabecera_x (numero INTEGER NOT NULL, pago SMALLINT, total DOUBLE, hora DATETIME, tienda TEXT(50), "
              "memo1 TEXT, borrar YESNO NOT NULL DEFAULT 0)\n"
              "CREATE UNIQUE INDEX clave_cabecera_x_numero ON cabecera_x (numero)\n"
              "CREATE INDEX ix_cabecera_x_hora ON cabecera_x (hora)\n"
              "CREATE INDEX ix_cabecera_x_tienda ON cabecera_x (tienda)");
}

TEST(Ddl, OnPostgreSqlTextsHaveTheCollationAndRowsTheirOrder)
{
    EXPECT_EQ(creacion(Motor::PostgreSql),
              "CREATE COLLATION IF NOT EXISTS espanol (provider = icu, locale = 'es-u-ks-level2', deterministic = false)\n"
              "DO $$ BEGIN CREATE DOMAIN sino AS smallint; EXCEPTION WHEN duplicate_object THEN NULL; END $$\n"
              "CREATE TABLE cabecera_x (orden_ bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY, numero integer NOT NULL, "
              "pago smallint, total double precision, hora timestamp(0), tienda varchar(50) COLLATE espanol, "
              "memo1 text COLLATE espanol, borrar sino NOT NULL DEFAULT 0)\n"
              "CREATE UNIQUE INDEX clave_cabecera_x_numero ON cabecera_x (numero)\n"
              "CREATE INDEX ix_cabecera_x_hora ON cabecera_x (hora)\n"
              "CREATE INDEX ix_cabecera_x_tienda ON cabecera_x (tienda)");
}

TEST(Ddl, OnMariaDbTheDatabaseHasTheCollationAndRowsTheirHiddenOrder)
{
    EXPECT_EQ(
        creacion(Motor::MariaDb),
        "ALTER DATABASE CHARACTER SET utf8mb4 COLLATE utf8mb4_uca1400_spanish_nopad_as_ci\n"
        "CREATE TABLE cabecera_x (orden_ bigint NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY, numero int NOT NULL, "
        "pago smallint, total double, hora datetime, tienda varchar(50), memo1 mediumtext, borrar tinyint NOT NULL DEFAULT 0) "
        "ENGINE = InnoDB DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_uca1400_spanish_nopad_as_ci\n"
        "CREATE UNIQUE INDEX clave_cabecera_x_numero ON cabecera_x (numero)\n"
        "CREATE INDEX ix_cabecera_x_hora ON cabecera_x (hora)\n"
        "CREATE INDEX ix_cabecera_x_tienda ON cabecera_x (tienda)");
}

TEST(Ddl, TakingAwayNamesTheTablesAlone)
{
    for (const Motor motor : {Motor::Sqlite, Motor::PostgreSql, Motor::MariaDb})
        EXPECT_EQ(sentenciasDeBorrado(Base, motor), QList<QString>{u"DROP TABLE IF EXISTS cabecera_x"_s});
}

TEST(Ddl, EveryTableKeyAndIndexOfTheSchemaIsMade)
{
    for (const BaseEsquema* const base : {&baseTienda(), &baseListados()}) {
        qsizetype esperadas = 0;
        for (const TablaEsquema& tabla : base->tablas)
            esperadas += 1 + (tabla.claveUnica.isEmpty() ? 0 : 1) + static_cast<qsizetype>(tabla.indices.size());
        EXPECT_EQ(sentenciasDeCreacion(*base, Motor::Sqlite).size(), esperadas);
        EXPECT_EQ(sentenciasDeCreacion(*base, Motor::PostgreSql).size(), esperadas + 2);
        EXPECT_EQ(sentenciasDeCreacion(*base, Motor::MariaDb).size(), esperadas + 1);
    }
}

} // namespace
} // namespace kestrane::instalacion
