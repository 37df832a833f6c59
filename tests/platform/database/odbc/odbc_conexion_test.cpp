#include "platform/database/odbc/odbc_conexion.h"

#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

class OdbcConexionEnServidor : public Servidor
{
protected:
    /// One setting of the session.
    std::string ajuste(const QString& sql) { return filas(sql, {TipoColumna::Texto}); }
};
KESTRANE_EN_TODOS(OdbcConexionEnServidor);

TEST_P(OdbcConexionEnServidor, TheSessionHasTheSettingsThatStatementsRelyOn)
{
    if (esPostgreSql()) {
        EXPECT_EQ(ajuste(u"select current_setting('client_encoding')"_s), "'UTF8'|");
        EXPECT_EQ(ajuste(u"select current_setting('standard_conforming_strings')"_s), "'on'|");
        EXPECT_EQ(ajuste(u"select current_setting('lock_timeout')"_s), "'5s'|");
        return;
    }
    for (const char* const modo : {"ANSI_QUOTES", "STRICT_ALL_TABLES", "NO_BACKSLASH_ESCAPES"})
        EXPECT_NE(ajuste(u"select @@sql_mode"_s).find(modo), std::string::npos) << modo;
    EXPECT_EQ(ajuste(u"select @@collation_connection"_s), "'utf8mb4_uca1400_spanish_nopad_as_ci'|");
    EXPECT_EQ(ajuste(u"select cast(@@innodb_lock_wait_timeout as char)"_s), "'5'|");
}

TEST_P(OdbcConexionEnServidor, TheDriversOfThisMachineTakeUtf8)
{
    const OdbcConexion conexion{GetParam().dsn, {}, {}, {.forma = GetParam().forma}};
    EXPECT_EQ(conexion.enUtf8(), GetParam().forma == FormaTexto::SegunControlador);
}

TEST_P(OdbcConexionEnServidor, ATransactionCountsOnlyWhenConfirmed)
{
    OdbcConexion conexion{GetParam().dsn, {}, {}, {}};
    {
        const Transaccion transaccion{conexion};
        conexion.ejecuta(u"insert into t (a) values (1)"_s);
    }
    EXPECT_EQ(filas(u"select count(*) from t"_s, {TipoColumna::Entero32}), "0|");
    {
        Transaccion transaccion{conexion};
        conexion.ejecuta(u"insert into t (a) values (1)"_s);
        transaccion.confirma();
    }
    conexion.ejecuta(u"insert into t (a) values (2)"_s);
    EXPECT_EQ(filas(u"select count(*) from t"_s, {TipoColumna::Entero32}), "2|");
}

TEST_P(OdbcConexionEnServidor, ATransactionThatCannotBeTakenBackGivesTheConnectionUp)
{
    OdbcConexion conexion{GetParam().dsn, {}, {}, {}};
    {
        const Transaccion transaccion{conexion};
        conexion.daPorPerdida();
    }
    EXPECT_TRUE(conexion.perdida());
}

} // namespace
} // namespace kestrane::database::odbc
