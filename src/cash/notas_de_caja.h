#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// The desk's remarks and the reasons of the expenses of the period as one text of at most 254 characters:
/// "Observaciones de Caja: 15/03/2024 - Falta cambio\r\r\nGastos: 1 Café\r\n". What is too long is cut, the expenses first. The
/// progress bar goes on with each remark and each expense.
[[nodiscard]] QString notasDeCaja(Listados& listados);

} // namespace kestrane
