#pragma once

#include "platform/database/conexion.h"

#include <map>

namespace kestrane::bench {

/// What an engine was asked, by data source.
using Cuentas = std::map<QString, qint64>;

/// Opens the engines as `opciones` would and counts the statements that are run on each; blocks of added rows count as one.
/// `cuentas` outlives the engines.
[[nodiscard]] database::OpcionesDatos conCuenta(const database::OpcionesDatos& opciones, Cuentas& cuentas);

} // namespace kestrane::bench
