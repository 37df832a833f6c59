#pragma once

#include "apoyo/tienda_de_prueba.h"

#include <QStringList>

namespace kestrane::prueba {

/// Writes down what reaches the engines, in order: "abre DSN", "cierra DSN", "DSN: filas en TABLA", and for each statement that is
/// run "DSN: " with the engine's text without what its renderer adds to every one, each "?" replaced by its value:
/// "TiendaKestrane: SELECT nombre FROM multitienda WHERE nombre <> 'Servidor'". `anotaciones` outlives the engines.
[[nodiscard]] Envoltura anotaEn(QStringList& anotaciones);

} // namespace kestrane::prueba
