#pragma once

#include "platform/database/conexion.h"

namespace kestrane {

/// True when `informes` or `subinformes` holds a row; rows that an earlier report left in `subinformes` count. `listados` is the
/// open connection to the reports database.
[[nodiscard]] bool HayDatos(Conexion& listados);

} // namespace kestrane
