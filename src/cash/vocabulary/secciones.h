#pragma once

#include "cash/vocabulary/consulta_por_codigo.h"

/// The section of a sale line, through the catalogue that its kind selects. A kind without a catalogue leaves the table's name out
/// of the statement, which the database refuses.
namespace kestrane {

/// The section's name, "" when there is none.
[[nodiscard]] QString NombreSeccionDeLinea(Listados& listados, const Valor& codigo, QStringView tipoVenta);
/// The section's code as text, "-1" when there is none. Knows no catalogue for SF, CSF, CPSPA and PSPA, and one for SP.
[[nodiscard]] QString CodigoSeccionDeLinea(Listados& listados, const Valor& codigo, QStringView tipoVenta);

} // namespace kestrane
