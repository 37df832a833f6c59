#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/database/sqlite/sqlite_motor.h"

#include <gtest/gtest.h>

namespace kestrane::database::sqlite {
namespace {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

/// The table `t` of a database made by `sql`, by value: the file goes away.
jet::Tabla tabla(const char* sql)
{
    const BaseDePrueba base{sql};
    SqliteMotor motor{{base.fichero()}};
    const jet::Tabla* const leida = motor.catalogo().tabla(u"t");
    return leida ? *leida : jet::Tabla{};
}

TEST(SqliteCatalogo, ATableThatIsNotThereIsNotFound)
{
    const BaseDePrueba base{"create table t (a integer)"};
    SqliteMotor motor{{base.fichero()}};
    EXPECT_EQ(motor.catalogo().tabla(u"otra"), nullptr);
    EXPECT_EQ(motor.catalogo().tabla(u""), nullptr);
}

TEST(SqliteCatalogo, ATableIsFoundInAnyCaseAndKeepsItsSpelling)
{
    const BaseDePrueba base{"create table Años (a integer)"};
    SqliteMotor motor{{base.fichero()}};
    ASSERT_NE(motor.catalogo().tabla(u"AÑOS"), nullptr);
    EXPECT_EQ(motor.catalogo().tabla(u"años")->nombre, u"Años");
    EXPECT_EQ(motor.catalogo().tabla(u"años"), motor.catalogo().tabla(u"aÑos"));
}

TEST(SqliteCatalogo, ATableMadeLaterIsFoundToo)
{
    const BaseDePrueba base{"create table t (a integer)"};
    SqliteMotor motor{{base.fichero()}};
    EXPECT_EQ(motor.catalogo().tabla(u"nueva"), nullptr);
    base.ejecuta("create table nueva (a integer)");
    EXPECT_NE(motor.catalogo().tabla(u"nueva"), nullptr);
}

TEST(SqliteCatalogo, DeclarationsStandForTheTypesOfTheDialect)
{
    for (const auto& [declaracion, esperado] : {std::pair{u"LONG"_s, TipoDeclarado{TipoColumna::Entero32, 0}},
                                                {u"integer"_s, {TipoColumna::Entero32, 0}},
                                                {u"BIGINT"_s, {TipoColumna::Entero32, 0}},
                                                {u"SMALLINT"_s, {TipoColumna::Entero16, 0}},
                                                {u"DOUBLE"_s, {TipoColumna::Doble, 0}},
                                                {u"DOUBLE PRECISION"_s, {TipoColumna::Doble, 0}},
                                                {u"DECIMAL(10,2)"_s, {TipoColumna::Doble, 0}},
                                                {u"CURRENCY"_s, {TipoColumna::Doble, 0}},
                                                {u"DATETIME"_s, {TipoColumna::FechaHora, 0}},
                                                {u"date"_s, {TipoColumna::FechaHora, 0}},
                                                {u"YESNO"_s, {TipoColumna::SiNo, 0}},
                                                {u"BOOLEAN"_s, {TipoColumna::SiNo, 0}},
                                                {u"TEXT(50)"_s, {TipoColumna::Texto, 50}},
                                                {u"VARCHAR ( 20 )"_s, {TipoColumna::Texto, 20}},
                                                {u"TEXT"_s, {TipoColumna::Memo, 0}},
                                                {u"MEMO"_s, {TipoColumna::Memo, 0}},
                                                {u"CLOB"_s, {TipoColumna::Memo, 0}},
                                                {u""_s, {TipoColumna::Memo, 0}},
                                                {u"UNSIGNEDINT"_s, {TipoColumna::Entero32, 0}},
                                                {u"LO QUE SEA"_s, {TipoColumna::Doble, 0}}})
        EXPECT_EQ(tipoDeclarado(declaracion), esperado) << qPrintable(declaracion);
}

TEST(SqliteCatalogo, ColumnsComeInTheirOrderWithNameTypeWidthAndNull)
{
    const jet::Tabla t =
        tabla("create table t (Numero LONG not null, nombre TEXT(50), alta DATETIME, borrar YESNO not null default 0)");
    ASSERT_EQ(t.columnas.size(), 4u);
    EXPECT_EQ(t.columnas[0], (jet::Columna{u"Numero"_s, TipoColumna::Entero32, 0, false}));
    EXPECT_EQ(t.columnas[1], (jet::Columna{u"nombre"_s, TipoColumna::Texto, 50, true}));
    EXPECT_EQ(t.columnas[2], (jet::Columna{u"alta"_s, TipoColumna::FechaHora, 0, true}));
    EXPECT_EQ(t.columnas[3], (jet::Columna{u"borrar"_s, TipoColumna::SiNo, 0, false}));
}

TEST(SqliteCatalogo, RowsAreOrderedAndNamedByTheRowNumber)
{
    const jet::Tabla t = tabla("create table t (a LONG)");
    EXPECT_EQ(t.orden, std::vector<QString>{u"rowid"_s});
    EXPECT_EQ(t.identidad, u"rowid");
}

TEST(SqliteCatalogo, AColumnCalledRowidDoesNotHideTheRowNumber)
{
    EXPECT_EQ(tabla("create table t (ROWID LONG)").identidad, u"_rowid_");
}

TEST(SqliteCatalogo, WithoutRowNumbersThePrimaryKeyOrders)
{
    const jet::Tabla dos = tabla("create table t (a LONG, b TEXT(5), primary key (b, a)) without rowid");
    EXPECT_EQ(dos.orden, (std::vector<QString>{u"b"_s, u"a"_s}));
    EXPECT_EQ(dos.identidad, u"");
    const jet::Tabla una = tabla("create table t (a LONG primary key, b TEXT(5)) without rowid");
    EXPECT_EQ(una.identidad, u"a");
}

TEST(SqliteCatalogo, AViewHasNoOrder)
{
    const jet::Tabla t = tabla("create table base (a LONG); create view t as select a from base");
    EXPECT_EQ(t.columnas.size(), 1u);
    EXPECT_TRUE(t.orden.empty());
    EXPECT_EQ(t.identidad, u"");
}

TEST(SqliteCatalogo, WhatOnlyTheEngineCanJudgeIsTold)
{
    EXPECT_FALSE(tabla("create table t (a LONG not null, b TEXT(5) default null); create index i on t (a)").tieneClavesUnicas);
    for (const char* const sql :
         {"create table t (a LONG); create unique index i on t (a)", "create table t (a LONG primary key)",
          "create table t (a INTEGER PRIMARY KEY)", "create table t (a LONG unique)", "create table t (a LONG check (a > 0))",
          "create table t (a LONG); create trigger g before insert on t begin select raise(abort, 'no'); end",
          "create table t (a LONG default 5)"})
        EXPECT_TRUE(tabla(sql).tieneClavesUnicas) << sql;
}

} // namespace
} // namespace kestrane::database::sqlite
