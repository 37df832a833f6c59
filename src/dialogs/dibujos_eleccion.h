#pragma once

#include <QColor>
#include <QIcon>

namespace kestrane {

/// What the choices of the employee history look like.
enum class DibujoDe { UnEmpleado, TodosLosEmpleados, Detalle, Total };

/// One head or three, a list of lines, or a sum below a line, in that colour.
[[nodiscard]] QIcon dibujoDeEleccion(DibujoDe que, const QColor& color);

} // namespace kestrane
