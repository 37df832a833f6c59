#pragma once

#include "platform/runtime/fecha.h"

#include <QString>

/// What dialogs check.
namespace kestrane::Utilidades {

/// "" when `hasta` is not a day before that of `desde`; otherwise what the operator is told. Times of day play no part.
[[nodiscard]] QString ComprobarFechas(Fecha desde, Fecha hasta);

} // namespace kestrane::Utilidades
