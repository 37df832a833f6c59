#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// Whether a line of the sale with that code has been returned, be it in part.
[[nodiscard]] bool TieneDetalleAbono(Listados& listados, const Valor& factura, const Valor& codigo);

/// Clears `subinformes` and writes the tax in the lines sold in the period, in all stores: a row for each rate, ascending. `texto3`
/// " al 21% ", `numerico5` the gross amount, `numerico4` the tax in it, worked back from the gross amount. Money paid into deposits
/// and lines that were returned are left out. Unless the first line has rate 0 a row of that rate without amounts comes first. The
/// progress bar goes on with each line. Error 94 for a Null rate, tax or price.
void escribeResumenDeImpuestos(Listados& listados);

} // namespace kestrane
