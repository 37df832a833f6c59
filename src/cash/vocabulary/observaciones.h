#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// Clears `subinformes` and copies the cash desk's remarks that `sentencia` finds in `observacioncaja`: `Fecha1` the day, `fecha2`
/// the bare time, `texto1` the employee's short name, `texto2` the remark. The progress bar goes on with each.
void copiaObservaciones(Listados& listados, const QString& sentencia);

/// What all such statements begin with.
inline constexpr QStringView CabezaObservaciones =
    u"Select observacion,fecha,hora,empleado from observacioncaja where fecha between ";

} // namespace kestrane
