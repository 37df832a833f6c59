#pragma once

#include "platform/database/recordset.h"

/// Amounts of sale lines, euros. A Null in them makes the result Null, so that a column stays null and a running value (which takes
/// them by `doble()`) ends in error 94.
namespace kestrane {

namespace importes {
[[nodiscard]] Valor suma(const Valor& a, const Valor& b);
[[nodiscard]] Valor resta(const Valor& a, const Valor& b);
/// The opposite of 0 is 0.
[[nodiscard]] Valor opuesto(const Valor& a);
} // namespace importes

/// `impuesto` + `impuesto_2`: the tax in the line's `precio`.
[[nodiscard]] Valor impuestosDeLinea(Recordset& linea);
/// `precio` without its tax.
[[nodiscard]] Valor netoDeLinea(Recordset& linea);
/// The tax in a returned line, whose `impuesto_2` counts as 0 when it is Null.
[[nodiscard]] Valor impuestosDeAbono(Recordset& linea);

} // namespace kestrane
