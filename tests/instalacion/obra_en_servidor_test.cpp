#include "instalacion/ddl.h"
#include "instalacion/lectura.h"
#include "instalacion/obra.h"
#include "platform/database/odbc/odbc_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <array>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;

struct Caso
{
    const char* nombre;
    jet::Motor motor;
    QString dsn;
};

class ObraEnServidor : public testing::TestWithParam<Caso>
{
protected:
    ObraEnServidor() : m_motor{database::odbc::abre(u"dsn="_s + GetParam().dsn)}
    {
        for (const QString& sentencia : sentenciasDeBorrado(baseListados(), GetParam().motor))
            ejecuta(*m_motor, sentencia);
    }
    [[nodiscard]] std::unique_ptr<Obra> obra(const BaseEsquema& base = baseListados()) const
    {
        return obraEnServidor(base, GetParam().dsn, GetParam().motor);
    }
    void hace(const BaseEsquema& base) const
    {
        const auto suya = obra(base);
        suya->construye({});
        suya->termina();
        suya->confirma();
    }
    [[nodiscard]] database::MotorBase& motor() { return *m_motor; }
    [[nodiscard]] bool esPostgreSql() const { return GetParam().motor == jet::Motor::PostgreSql; }
    [[nodiscard]] bool hay(const QString& tabla) { return abierto()->catalogo().tabla(tabla) != nullptr; }
    [[nodiscard]] std::unique_ptr<database::MotorBase> abierto() const { return database::odbc::abre(u"dsn="_s + GetParam().dsn); }
    int cuenta(const QString& sql)
    {
        const auto sentencia = m_motor->prepara(sql.toUtf8(), {}, std::array{jet::TipoColumna::Entero32});
        sentencia->ejecuta({});
        database::AlmacenFilas filas{1};
        EXPECT_TRUE(sentencia->siguiente(filas));
        sentencia->reinicia();
        EXPECT_TRUE(filas.siguiente());
        return filas.valor(0).entero32();
    }

private:
    std::unique_ptr<database::MotorBase> m_motor;
};
INSTANTIATE_TEST_SUITE_P(Servidores, ObraEnServidor,
                         testing::Values(Caso{"PostgreSql", jet::Motor::PostgreSql, u"KestranePgListados"_s},
                                         Caso{"MariaDb", jet::Motor::MariaDb, u"KestraneMariaListados"_s}),
                         [](const auto& caso) { return std::string{caso.param.nombre}; });

TEST_P(ObraEnServidor, TheDatabaseHoldsTheSchema)
{
    for (const BaseEsquema* const base : {&baseTienda(), &baseListados()}) {
        hace(*base);
        expectEsquema(*abierto(), *base);
    }
    for (const QString& sentencia : sentenciasDeBorrado(baseTienda(), GetParam().motor))
        ejecuta(motor(), sentencia);
}

TEST_P(ObraEnServidor, EveryIndexStandsOnOneColumn)
{
    hace(baseListados());
    const int indices = esPostgreSql()
                            ? cuenta(u"select count(*) from pg_index i join pg_class c on c.oid = i.indrelid where "
                                     u"c.relname in ('informes', 'subinformes', 'listadostemporal') and i.indnatts = 1"_s)
                            : cuenta(u"select count(*) from information_schema.statistics where table_schema = database() and "
                                     u"table_name in ('informes', 'subinformes', 'listadostemporal') and seq_in_index = 1"_s);
    EXPECT_EQ(indices, 4) << "the three hidden orders and texto21";
}

TEST_P(ObraEnServidor, TextsCompareWithoutCaseAndWithAccents)
{
    hace(baseListados());
    ejecuta(motor(), u"insert into listadostemporal (list1) values ('ñandú')"_s);
    EXPECT_EQ(cuenta(u"select count(*) from listadostemporal where list1 = 'ÑANDÚ'"_s), 1);
    EXPECT_EQ(cuenta(u"select count(*) from listadostemporal where list1 = 'ñandu'"_s), 0);
    EXPECT_EQ(cuenta(u"select count(*) from listadostemporal where list1 = 'nandú'"_s), 0);
    EXPECT_EQ(cuenta(u"select count(*) from listadostemporal where list1 = 'ñandú '"_s), 0) << "blanks count";
}

TEST_P(ObraEnServidor, RowsAreNumberedAsTheyAreStored)
{
    hace(baseListados());
    for (const char16_t* const texto : {u"c", u"a", u"b"})
        ejecuta(motor(), u"insert into listadostemporal (list1) values ('%1')"_s.arg(QString::fromUtf16(texto)));
    EXPECT_EQ(
        cuenta(u"select count(*) from listadostemporal x join listadostemporal y on x.orden_ < y.orden_ where x.list1 = 'c'"_s), 2);
    EXPECT_EQ(
        cuenta(u"select count(*) from listadostemporal x join listadostemporal y on x.orden_ < y.orden_ where x.list1 = 'b'"_s), 0);
}

TEST_P(ObraEnServidor, GivenUpItLeavesNothingBehind)
{
    {
        const auto suya = obra();
        EXPECT_FALSE(suya->ocupada());
        suya->construye({});
    }
    EXPECT_FALSE(hay(u"informes"_s));
    EXPECT_FALSE(hay(u"listadostemporal"_s));
}

TEST_P(ObraEnServidor, OneTableOfOursIsEnoughToBeOccupied)
{
    ejecuta(motor(), u"create table subinformes (a int)"_s);
    EXPECT_TRUE(obra()->ocupada());
    EXPECT_FALSE(obra(baseTienda())->ocupada());
}

TEST_P(ObraEnServidor, WhatIsReplacedGoesWithItsRowsAndTablesOfOthersStay)
{
    ejecuta(motor(), u"drop table if exists ajena"_s);
    ejecuta(motor(), u"create table ajena (a int)"_s);
    hace(baseListados());
    ejecuta(motor(), u"insert into listadostemporal (list1) values ('1')"_s);
    hace(baseListados());
    EXPECT_EQ(cuenta(u"select count(*) from listadostemporal"_s), 0);
    EXPECT_TRUE(hay(u"ajena"_s));
}

TEST_P(ObraEnServidor, AFailureHalfWayLeavesNothingHalfMade)
{
    // Something else has the name of what comes late.
    ejecuta(motor(), u"drop table if exists ajena"_s);
    ejecuta(motor(), u"create table ajena (a int)"_s);
    ejecuta(motor(), esPostgreSql() ? u"create index ix_informes_texto21 on ajena (a)"_s
                                    : u"create view listadostemporal as select a from ajena"_s);
    EXPECT_THROW(obra()->construye({}), ErrorEjecucion);
    EXPECT_FALSE(hay(u"informes"_s));
    EXPECT_FALSE(hay(u"subinformes"_s));
    EXPECT_TRUE(hay(u"ajena"_s));
    if (!esPostgreSql())
        ejecuta(motor(), u"drop view listadostemporal"_s);
    ejecuta(motor(), u"drop table ajena"_s);
}

TEST_P(ObraEnServidor, AFillThatFailsLeavesNothingHalfMade)
{
    EXPECT_THROW(obra()->construye([](Carga&) { throw ErrorEjecucion{ErrorEjecucion::Desbordamiento}; }), ErrorEjecucion);
    EXPECT_FALSE(hay(u"informes"_s));
    EXPECT_FALSE(hay(u"listadostemporal"_s));
}

TEST_P(ObraEnServidor, AFailureBehindTheFillLeavesNothingHalfMade)
{
    ejecuta(motor(), u"drop table if exists ajena"_s);
    ejecuta(motor(), u"create table ajena (a int)"_s);
    const QString indice = u"ix_informes_texto21"_s;
    EXPECT_THROW(obra()->construye([&](Carga&) {
        ejecuta(motor(), esPostgreSql() ? u"create index %1 on ajena (a)"_s.arg(indice)
                                        : u"create index %1 on informes (texto21)"_s.arg(indice));
    }),
                 ErrorEjecucion);
    EXPECT_FALSE(hay(u"informes"_s));
    EXPECT_TRUE(hay(u"ajena"_s));
    ejecuta(motor(), u"drop table ajena"_s);
}

TEST_P(ObraEnServidor, UntilItIsConfirmedItGoesAgain)
{
    {
        const auto suya = obra();
        suya->construye({});
        suya->termina();
        EXPECT_TRUE(hay(u"informes"_s));
    }
    EXPECT_FALSE(hay(u"informes"_s));
}

TEST_P(ObraEnServidor, AnotherKindOfServerThanAskedForIsRefused)
{
    const jet::Motor otro = esPostgreSql() ? jet::Motor::MariaDb : jet::Motor::PostgreSql;
    try {
        (void)obraEnServidor(baseListados(), GetParam().dsn, otro);
        ADD_FAILURE() << "it was accepted";
    } catch (const ErrorEjecucion& error) {
        EXPECT_TRUE(
            error.descripcion().contains(esPostgreSql() ? u"lleva a un servidor PostgreSQL" : u"lleva a un servidor MariaDB"))
            << error.what();
    }
}

} // namespace
} // namespace kestrane::instalacion
