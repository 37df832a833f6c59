#include "platform/database/odbc/odbc_errores.h"

#include <gtest/gtest.h>

namespace kestrane::database::odbc {
namespace {

using namespace Qt::StringLiterals;
using Categoria = ErrorMotor::Categoria;

const OrigenDatos Origen{u"Tienda"_s, u"ana"_s};

ErrorMotor alAbrir(const QString& estado, qint32 nativo, const QString& texto)
{
    const std::vector<Diagnostico> diagnosticos{{estado, nativo, texto}};
    return errorAlAbrir(diagnosticos, Origen);
}

void expectApertura(const QString& estado, qint32 nativo, const QString& texto, const QString& comienzo)
{
    const ErrorMotor error = alAbrir(estado, nativo, texto);
    EXPECT_EQ(error.numero(), ErrorEjecucion::ConexionImposible);
    EXPECT_TRUE(error.descripcion().startsWith(comienzo)) << error.what();
    EXPECT_TRUE(error.descripcion().contains(u"\"Tienda\"")) << error.what();
}

TEST(OdbcErroresAlAbrir, TheSentenceTellsWhatToMend)
{
    expectApertura(u"IM003"_s, 0, u"Specified driver could not be loaded"_s, u"No se encuentra el controlador ODBC"_s);
    expectApertura(u"01000"_s, 0, u"Can't open lib '/x.so' : file not found"_s, u"No se encuentra el controlador ODBC"_s);
    expectApertura(u"IM002"_s, 0, u"Data source name not found"_s, u"El origen de datos ODBC \"Tienda\" no existe"_s);
    expectApertura(u"28000"_s, 1045, u"Access denied"_s,
                   u"El servidor del origen de datos \"Tienda\" rechaza al usuario \"ana\""_s);
    expectApertura(u"08001"_s, 101, u"FATAL:  password authentication failed for user \"ana\""_s, u"El servidor del origen de"_s);
    expectApertura(u"08001"_s, 101, u"FATAL:  database \"x\" does not exist"_s,
                   u"El servidor del origen de datos \"Tienda\" no tiene la base de datos"_s);
    expectApertura(u"42000"_s, 1049, u"Unknown database 'x'"_s, u"El servidor del origen de datos \"Tienda\" no tiene la base"_s);
    expectApertura(u"08004"_s, 1040, u"Too many connections"_s, u"El servidor del origen de datos \"Tienda\" no admite más"_s);
    expectApertura(u"08001"_s, 101, u"connection refused"_s, u"No se puede conectar con el servidor"_s);
    expectApertura(u"S1000"_s, 2002, u"Can't connect to server on 'x' (115)"_s, u"No se puede conectar con el servidor"_s);
}

TEST(OdbcErroresAlAbrir, TheServersOwnTextFollowsInOneLine)
{
    EXPECT_TRUE(alAbrir(u"08001"_s, 101, u"could not connect:\n\tConnection refused."_s)
                    .descripcion()
                    .endsWith(u"(could not connect: Connection refused)."));
}

TEST(OdbcErroresAlAbrir, NoDiagnosticIsAServerThatIsNotReached)
{
    EXPECT_TRUE(errorAlAbrir({}, Origen).descripcion().startsWith(u"No se puede conectar con el servidor"));
}

void expectCategoria(jet::Motor motor, const QString& estado, qint32 nativo, Categoria categoria)
{
    const std::vector<Diagnostico> diagnosticos{{estado, nativo, u"server text"_s}};
    const ErrorMotor error = errorAlEjecutar(motor, diagnosticos, Origen);
    EXPECT_EQ(error.categoria(), categoria) << estado.toStdString() << " " << nativo;
    EXPECT_EQ(error.numero(), ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(error.descripcion().contains(u"server text")) << error.what();
}

TEST(OdbcErroresAlEjecutar, PostgreSqlIsReadByItsState)
{
    const auto expect = [](const QString& estado, Categoria categoria) {
        expectCategoria(jet::Motor::PostgreSql, estado, 1, categoria);
    };
    expect(u"42P01"_s, Categoria::Sentencia);
    expect(u"42883"_s, Categoria::Sentencia);
    expect(u"08S01"_s, Categoria::ConexionPerdida);
    expect(u"57P01"_s, Categoria::ConexionPerdida);
    expect(u"55P03"_s, Categoria::Ocupada);
    expect(u"57014"_s, Categoria::Ocupada);
    expect(u"40P01"_s, Categoria::Ocupada);
    expect(u"23505"_s, Categoria::Restriccion);
    expect(u"22001"_s, Categoria::Restriccion);
    expect(u"42501"_s, Categoria::SoloLectura);
    expect(u"53100"_s, Categoria::SinSitio);
    expect(u"XX001"_s, Categoria::Danada);
}

TEST(OdbcErroresAlEjecutar, DivisionByZeroAndOverflowAreToldAsOnTheEmbeddedDatabase)
{
    const auto descripcion = [](jet::Motor motor, const QString& estado, qint32 nativo, const QString& texto) {
        const std::vector<Diagnostico> diagnosticos{{estado, nativo, texto}};
        return errorAlEjecutar(motor, diagnosticos, Origen).descripcion();
    };
    const QString porCero = u"La base de datos rechaza la sentencia: División por cero."_s;
    EXPECT_EQ(descripcion(jet::Motor::PostgreSql, u"22012"_s, 1, u"ERROR: division by zero"_s), porCero);
    EXPECT_EQ(descripcion(jet::Motor::MariaDb, u"22003"_s, 1690, u"DOUBLE value is out of range in 'pow(0,-1)'"_s), porCero);
    EXPECT_TRUE(
        descripcion(jet::Motor::PostgreSql, u"22003"_s, 1, u"ERROR: integer out of range"_s).endsWith(u": Desbordamiento."));
    EXPECT_TRUE(descripcion(jet::Motor::MariaDb, u"22003"_s, 1690, u"BIGINT value is out of range in '(7 * 4294967296)'"_s)
                    .endsWith(u": Desbordamiento."));
}

TEST(OdbcErroresAlEjecutar, MariaDbIsReadByItsNumber)
{
    const auto expect = [](qint32 nativo, Categoria categoria) {
        expectCategoria(jet::Motor::MariaDb, u"HY000"_s, nativo, categoria);
    };
    expect(1064, Categoria::Sentencia);
    expect(2006, Categoria::ConexionPerdida);
    expect(2013, Categoria::ConexionPerdida);
    expect(1205, Categoria::Ocupada);
    expect(1317, Categoria::Ocupada);
    expect(1213, Categoria::Ocupada);
    expect(1062, Categoria::Restriccion);
    expect(1406, Categoria::Restriccion);
    expect(1142, Categoria::SoloLectura);
    expect(1114, Categoria::SinSitio);
    expectCategoria(jet::Motor::MariaDb, u"08S01"_s, 0, Categoria::ConexionPerdida);
}

TEST(OdbcErroresAlEjecutar, AWarningBesideTheErrorIsPassedOver)
{
    const std::vector<Diagnostico> diagnosticos{{u"01004"_s, 0, u"truncated"_s}, {u"23505"_s, 1, u"duplicate key"_s}};
    const ErrorMotor error = errorAlEjecutar(jet::Motor::PostgreSql, diagnosticos, Origen);
    EXPECT_EQ(error.descripcion(), u"La base de datos no admite la fila: duplicate key.");
}

} // namespace
} // namespace kestrane::database::odbc
