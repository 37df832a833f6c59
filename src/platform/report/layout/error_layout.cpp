#include "platform/report/layout/error_layout.h"

#include "platform/runtime/error_ejecucion.h"

namespace kestrane::report {

QString describe(const LugarLayout& lugar)
{
    return lugar.linea > 0 ? QStringLiteral("%1, línea %2").arg(lugar.fichero).arg(lugar.linea) : lugar.fichero;
}

void fallaLayout(const LugarLayout& lugar, const QString& que)
{
    throw ErrorEjecucion{ErrorEjecucion::LayoutIncorrecto, describe(lugar) + QStringLiteral(": ") + que};
}

} // namespace kestrane::report
