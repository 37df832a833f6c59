#pragma once

#include "platform/runtime/configuracion_regional.h"

struct sqlite3;

namespace kestrane::database::sqlite {

/// Registers what rendered statements need beyond the engine's own: the collation ESPANOL, `like` without case beyond ASCII,
/// `mes` `anio` `dia` `hora` of stored dates, `texto` and `texto_fecha` by the regional settings, `division` `division_entera`
/// `resto` that refuse a divisor of 0, `cabe_texto` `cabe_entero` that refuse what a column does not hold. `regional` must hold as
/// long as the database is open.
void registraFunciones(sqlite3* base, const ConfiguracionRegional& regional);

} // namespace kestrane::database::sqlite
