#include "platform/database/odbc/odbc_conexion.h"

#include "platform/database/odbc/odbc_sentencia.h"
#include "platform/database/odbc/servidor.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

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
    for (const char* const modo : {"ANSI_QUOTES", "STRICT_ALL_TABLES", "NO_BACKSLASH_ESCAPES", "SIMULTANEOUS_ASSIGNMENT"})
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

TEST_P(OdbcConexionEnServidor, ATransactionThatCannotBeTakenBackGivesTheConnectionUpAndLeavesNothing)
{
    const auto conexion = std::make_shared<OdbcConexion>(GetParam().dsn, QString{}, QString{}, OpcionesOdbc{});
    OdbcSentencia quien{
        conexion, segun(u"select pg_backend_pid()", u"select connection_id()").toUtf8(), {}, std::array{TipoColumna::Entero32}};
    const int numero = std::stoi(filas(quien, 1));
    {
        const Transaccion transaccion{*conexion};
        conexion->ejecuta(u"insert into t (a) values (1)"_s);
        corta(numero);
        EXPECT_FALSE(conexion->perdida());
    }
    EXPECT_TRUE(conexion->perdida());
    EXPECT_EQ(filas(u"select count(*) from t"_s, {TipoColumna::Entero32}), "0|");
}

TEST_P(OdbcConexionEnServidor, WaitingForALockCanBeSetAndTurnedOff)
{
    const auto conexion = std::make_shared<OdbcConexion>(GetParam().dsn, QString{}, QString{}, OpcionesOdbc{});
    const QString sql = segun(u"select current_setting('lock_timeout')", u"select concat(@@lock_wait_timeout, 's')");
    const auto ajustado = [&](std::chrono::milliseconds espera) {
        conexion->ponEspera(espera);
        OdbcSentencia sentencia{conexion, sql.toUtf8(), {}, std::array{TipoColumna::Texto}};
        return filas(sentencia, 1);
    };
    EXPECT_EQ(ajustado(std::chrono::seconds{3}), "'3s'|");
    EXPECT_EQ(ajustado(std::chrono::milliseconds{0}), esPostgreSql() ? "'1ms'|" : "'0s'|");
}

/// After how many silent seconds each open connection of this process asks whether the other machine is there.
std::vector<int> sondeosAbiertos()
{
    std::vector<int> segundos;
    for (int descriptor = 3; descriptor < 256; ++descriptor) {
        int encendido = 0;
        int espera = 0;
        socklen_t bytes = sizeof(int);
        if (getsockopt(descriptor, SOL_SOCKET, SO_KEEPALIVE, &encendido, &bytes) != 0 || encendido == 0)
            continue;
        if (getsockopt(descriptor, IPPROTO_TCP, TCP_KEEPIDLE, &espera, &bytes) == 0)
            segundos.push_back(espera);
    }
    return segundos;
}

TEST_P(OdbcConexionEnServidor, AServerThatSaysNothingIsGivenUp)
{
    if (esPostgreSql()) {
        const OdbcConexion conexion{GetParam().dsn, {}, {}, {.sondeo = std::chrono::seconds{77}}};
        EXPECT_EQ(std::ranges::count(sondeosAbiertos(), 77), 1);
        return;
    }
    const auto impaciente = otro({.esperaRespuesta = std::chrono::seconds{1}});
    const auto antes = std::chrono::steady_clock::now();
    const auto rechazo = error([&] { ejecuta(*impaciente, u"do sleep(6)"_s); });
    ASSERT_TRUE(rechazo);
    EXPECT_EQ(rechazo->categoria(), ErrorMotor::Categoria::ConexionPerdida) << qPrintable(rechazo->descripcion());
    EXPECT_TRUE(impaciente->perdida());
    EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds{5});
}

} // namespace
} // namespace kestrane::database::odbc
