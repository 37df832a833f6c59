#include "platform/database/odbc/odbc_recursos.h"

#include "platform/database/error_motor.h"

#include <gtest/gtest.h>

#include <sqlucode.h>

namespace kestrane::database::odbc {
namespace {

using namespace Qt::StringLiterals;

TEST(OdbcRecursos, WithoutAHandleToBeHadTheErrorIsTheOperators)
{
    try {
        const ManejadorConexion sinEntorno{nullptr};
        FAIL();
    } catch (const ErrorMotor& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::ConexionImposible);
        EXPECT_TRUE(error.descripcion().contains(u"ODBC"));
    }
    EXPECT_EQ(ManejadorConexion::intenta(nullptr).get(), nullptr);
}

TEST(OdbcRecursos, AHandleThatWasMovedFromHoldsNothing)
{
    ManejadorEntorno uno = entornoOdbc3();
    ASSERT_NE(uno.get(), nullptr);
    SQLHANDLE const entorno = uno.get();
    ManejadorEntorno otro = std::move(uno);
    EXPECT_EQ(otro.get(), entorno);
    EXPECT_EQ(uno.get(), nullptr); // NOLINT(bugprone-use-after-move): what is left behind is the point
}

TEST(OdbcRecursos, ACallThatWorkedLeavesNoDiagnostics)
{
    const ManejadorEntorno entorno = entornoOdbc3();
    EXPECT_TRUE(diagnosticos(SQL_HANDLE_ENV, entorno.get()).empty());
}

TEST(OdbcRecursos, ADiagnosticHasStateAndTextWithoutTheNamesInBrackets)
{
    const ManejadorEntorno entorno = entornoOdbc3();
    const ManejadorConexion conexion{entorno.get()};
    const QString cadena = u"DSN=NoExisteEnNingunSitio"_s;
    ASSERT_EQ(SQLDriverConnectW(conexion.get(), nullptr, textoAncho(cadena), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
              SQL_ERROR);
    const auto hallados = diagnosticos(SQL_HANDLE_DBC, conexion.get());
    ASSERT_EQ(hallados.size(), 1U);
    EXPECT_EQ(hallados[0].estado, u"IM002");
    EXPECT_FALSE(hallados[0].texto.isEmpty());
    EXPECT_FALSE(hallados[0].texto.contains(u'['));
}

} // namespace
} // namespace kestrane::database::odbc
