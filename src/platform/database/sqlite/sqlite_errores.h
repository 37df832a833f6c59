#pragma once

#include "platform/database/error_motor.h"

#include <QString>

struct sqlite3;

namespace kestrane::database::sqlite {

/// The error for a result code of the engine: a Spanish sentence that says what, where and how to mend it when the code is one that
/// an operator can do something about, else the engine's own text. `fichero` is named in it.
[[nodiscard]] ErrorMotor errorDe(sqlite3* base, int codigo, const QString& fichero, ErrorEjecucion::Numero numero);

/// The error of a data source whose file is not there.
[[nodiscard]] ErrorMotor ficheroQueFalta(const QString& fichero);

} // namespace kestrane::database::sqlite
