#pragma once

#include "pipeline/listados.h"

/// What the cash reports ask of a period.
namespace kestrane {

/// Whether the period is one day, the only kind that has an opening cash and withdrawals.
[[nodiscard]] bool esDeUnDia(const ContextoEjecucion& contexto);

/// `importe` of the first opening cash of that day in `caja_inicial`, euros; Null when there is none. Error 94 when it is Null
/// there.
[[nodiscard]] Valor importeDeCajaInicial(Listados& listados);

/// The field `valor` of the one row of `sentencia`, a sum on the shop; 0 when it is Null.
[[nodiscard]] double sumaDelPeriodo(Listados& listados, const QString& sentencia);

} // namespace kestrane
