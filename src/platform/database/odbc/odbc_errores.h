#pragma once

#include "platform/database/error_motor.h"
#include "platform/database/odbc/odbc_recursos.h"
#include "platform/jet/traductor.h"

#include <span>

/// What a driver tells, as the error that the programs show: what happened, where, and how to mend it.
namespace kestrane::database::odbc {

/// Where the trouble arose, for the sentence.
struct OrigenDatos
{
    QString dsn;
    QString usuario; ///< "" when the data source names it itself
};

/// Why a connection could not be opened: no driver, server not reached, user refused, no such database, server full.
[[nodiscard]] ErrorMotor errorAlAbrir(std::span<const Diagnostico> diagnosticos, const OrigenDatos& origen);

/// What the driver says of a connection when it is asked.
enum class Enlace { Vivo, Muerto };

/// Why a statement was refused. The category tells a lost connection, a lock, a broken rule and the like from the rest.
[[nodiscard]] ErrorMotor errorAlEjecutar(jet::Motor motor, std::span<const Diagnostico> diagnosticos, const OrigenDatos& origen,
                                         Enlace enlace = Enlace::Vivo);

} // namespace kestrane::database::odbc
