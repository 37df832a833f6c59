#pragma once

#include "platform/report/export/exportacion.h"

namespace kestrane::report {

/// Tells how far the work is; false when it is to be broken off.
[[nodiscard]] inline bool sigue(const AvanceExportacion& avance, qsizetype hecho, qsizetype todo)
{
    return !avance || avance(todo == 0 ? 1.0 : static_cast<double>(hecho) / static_cast<double>(todo));
}

} // namespace kestrane::report
