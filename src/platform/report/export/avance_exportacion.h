#pragma once

#include "platform/report/export/exportacion.h"

namespace kestrane::report {

/// Tells how far the work is; false when it is to be broken off.
[[nodiscard]] inline bool sigue(const AvanceExportacion& avance, qsizetype hecho, qsizetype todo)
{
    return !avance || avance(todo == 0 ? 1.0 : static_cast<double>(hecho) / static_cast<double>(todo));
}

/// What a part of the work tells, from `desde` to `hasta` of all of it. `avance` outlives it.
[[nodiscard]] inline AvanceExportacion tramo(const AvanceExportacion& avance, double desde, double hasta)
{
    if (!avance)
        return {};
    return [&avance, desde, hasta](double hecho) { return avance(desde + hecho * (hasta - desde)); };
}

} // namespace kestrane::report
