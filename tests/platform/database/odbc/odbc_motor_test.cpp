#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

/// What opening `dsn` fails with.
std::string apertura(const QString& dsn, const QString& usuario = {}, const QString& clave = {})
{
    try {
        (void)abre(u"dsn="_s + dsn, usuario, clave);
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::ConexionImposible);
        return error.descripcion().toStdString();
    }
    return "opened";
}

void expectApertura(const QString& dsn, const char* comienzo)
{
    EXPECT_EQ(apertura(dsn).substr(0, std::string{comienzo}.size()), comienzo);
}

TEST(OdbcMotor, ASourceIsDefinedWhateverTheCaseOfItsName)
{
    EXPECT_FALSE(defineDsn(u"NoExiste"_s));
    EXPECT_FALSE(defineDsn(u""_s));
    EXPECT_FALSE(defineDsn(u"KestranePg"_s)) << "the beginning of a name";
    EXPECT_TRUE(defineDsn(u"KestranePgTienda"_s));
    EXPECT_TRUE(defineDsn(u"kestranemariatienda"_s));
    EXPECT_TRUE(defineDsn(u"KestraneSinControlador"_s)) << "the driver is another matter";
}

TEST(OdbcMotor, OpeningFailsWithASentenceThatTellsWhatToMend)
{
    expectApertura(u"NoExiste"_s, "El origen de datos ODBC \"NoExiste\" no existe");
    expectApertura(u"KestraneSinControlador"_s,
                   "El origen de datos ODBC \"KestraneSinControlador\" no existe o nombra un controlador que no está instalado");
    expectApertura(u"KestraneSinBiblioteca"_s,
                   "No se encuentra el controlador ODBC del origen de datos \"KestraneSinBiblioteca\": instale el controlador");
    expectApertura(u"KestranePgCaido"_s, "No se puede conectar con el servidor del origen de datos \"KestranePgCaido\"");
    expectApertura(u"KestraneMariaCaido"_s, "No se puede conectar con el servidor del origen de datos \"KestraneMariaCaido\"");
}

class OdbcMotorEnServidor : public Servidor
{
};
KESTRANE_EN_TODOS(OdbcMotorEnServidor);

TEST_P(OdbcMotorEnServidor, AWrongPasswordIsToldWithTheUser)
{
    const std::string esperado =
        "El servidor del origen de datos \"" + GetParam().dsn.toStdString() + "\" rechaza al usuario \"kestrane\"";
    EXPECT_EQ(apertura(GetParam().dsn, u"kestrane"_s, u"equivocada"_s).substr(0, esperado.size()), esperado);
    EXPECT_NE(apertura(GetParam().dsn, u"nadie"_s, u"x"_s).find("rechaza al usuario \"nadie\""), std::string::npos);
}

TEST_P(OdbcMotorEnServidor, UserAndPasswordWithAnyMarkGoBeforeThoseOfTheSource)
{
    const QString usuario = qEnvironmentVariable("KESTRANE_USUARIO");
    const auto suyo = abre(u"DSN="_s + GetParam().dsn, usuario, qEnvironmentVariable("KESTRANE_CLAVE"));
    const auto sentencia =
        suyo->prepara(segun(u"select current_user::varchar", u"select substring_index(current_user(), '@', 1)").toUtf8(), {},
                      std::array{TipoColumna::Texto});
    EXPECT_EQ(filas(*sentencia, 1), "'" + usuario.toStdString() + "'|");
}

TEST_P(OdbcMotorEnServidor, ItKnowsItsServer)
{
    EXPECT_EQ(motor().clase(), GetParam().motor);
    EXPECT_FALSE(motor().perdida());
}

TEST_P(OdbcMotorEnServidor, AConnectionEndedByTheServerIsLost)
{
    const int numero = numeroDeConexion();
    corta(numero);
    const auto perdida = error([&] { ejecuta(u"update t set a = 1"_s); });
    ASSERT_TRUE(perdida);
    EXPECT_EQ(perdida->categoria(), ErrorMotor::Categoria::ConexionPerdida) << perdida->what();
    EXPECT_TRUE(perdida->descripcion().startsWith(u"Se ha perdido la conexión con el servidor")) << perdida->what();
    EXPECT_TRUE(motor().perdida());
}

TEST_P(OdbcMotorEnServidor, AStatementMadeBeforeTheLossTellsItToo)
{
    const auto sentencia = motor().prepara("select a from t", {}, std::array{TipoColumna::Entero32});
    sentencia->ejecuta({});
    sentencia->reinicia();
    corta(numeroDeConexion());
    const auto perdida = error([&] { sentencia->ejecuta({}); });
    ASSERT_TRUE(perdida);
    EXPECT_EQ(perdida->categoria(), ErrorMotor::Categoria::ConexionPerdida) << perdida->what();
    EXPECT_TRUE(motor().perdida());
}

TEST_P(OdbcMotorEnServidor, ALossAmidAResultLeavesItsRowsWholeAndTheNextStatementTellsIt)
{
    llena(1000);
    const auto sentencia = motor().prepara("select a from t order by orden_", {}, std::array{TipoColumna::Entero32});
    const int numero = numeroDeConexion();
    sentencia->ejecuta({});
    AlmacenFilas leidas{1};
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(sentencia->siguiente(leidas));
    corta(numero);
    while (sentencia->siguiente(leidas)) {
    }
    EXPECT_EQ(leidas.filas(), 1000) << "the result was on this side already";
    sentencia->reinicia();
    EXPECT_TRUE(error([&] { sentencia->ejecuta({}); }));
    EXPECT_TRUE(motor().perdida());
}

TEST_P(OdbcMotorEnServidor, ARefusedStatementIsToldInTheServersWordsAndLeavesTheConnectionGood)
{
    const auto rechazo = error([&] { ejecuta(u"select noexiste from t"_s); });
    ASSERT_TRUE(rechazo);
    EXPECT_EQ(rechazo->categoria(), ErrorMotor::Categoria::Sentencia);
    EXPECT_EQ(rechazo->numero(), ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(rechazo->descripcion().startsWith(u"La base de datos rechaza la sentencia: ")) << rechazo->what();
    EXPECT_TRUE(rechazo->descripcion().contains(u"noexiste")) << rechazo->what();
    EXPECT_FALSE(motor().perdida());
    EXPECT_EQ(ejecuta(u"update t set a = 1"_s), 0);
}

TEST_P(OdbcMotorEnServidor, ALockedRowIsWaitedForAsLongAsAskedAndThenTold)
{
    llena(1);
    const auto duenio = otro();
    ejecuta(*duenio, u"start transaction"_s);
    ejecuta(*duenio, u"update t set a = 2"_s);
    const auto impaciente = otro({.espera = std::chrono::milliseconds{1000}});
    const auto rechazo = error([&] { ejecuta(*impaciente, u"update t set a = 3"_s); });
    ejecuta(*duenio, u"rollback"_s);
    ASSERT_TRUE(rechazo);
    EXPECT_EQ(rechazo->categoria(), ErrorMotor::Categoria::Ocupada) << rechazo->what();
    EXPECT_TRUE(rechazo->descripcion().startsWith(u"Otro programa tiene bloqueada la base de datos")) << rechazo->what();
    EXPECT_FALSE(impaciente->perdida());
}

} // namespace
} // namespace kestrane::database::odbc
