#pragma once

#include "apoyo/tienda_de_prueba.h"

namespace kestrane::prueba {

/// The engine behind `dsn` gives at most `filas` rows of each query and then fails as a refused statement does.
[[nodiscard]] Envoltura interrumpeTras(int filas, const QString& dsn);

} // namespace kestrane::prueba
