#pragma once

#include "platform/database/motor.h"
#include "platform/database/odbc/odbc_opciones.h"

#include <QString>

#include <memory>

/// Database servers through unixODBC: PostgreSQL and MariaDB.
namespace kestrane::database::odbc {

/// True when the machine's ODBC set-up has a data source of that name, case ignored, whether or not its driver is there.
[[nodiscard]] bool defineDsn(const QString& nombre);

/// Opens "dsn=NAME". User and password go before those of the data source; empty ones leave it to it. ErrorEjecucion
/// ConexionImposible: no such data source, no driver, server not reached, user refused, no such database.
[[nodiscard]] std::unique_ptr<MotorBase> abre(const QString& cadena, const QString& usuario = {}, const QString& clave = {},
                                              const OpcionesOdbc& opciones = {});

} // namespace kestrane::database::odbc
