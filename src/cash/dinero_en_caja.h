#pragma once

#include "pipeline/listados.h"

/// What came in and went out in a period by the way it was paid, euros: sales and payments of debts less returns, with split
/// payments taken apart. The progress bar goes on with each row. Error 94 for a Null amount.
namespace kestrane {

/// In cash, without the opening cash. A sale that was left partly unpaid counts with its whole total.
[[nodiscard]] double efectivoDelPeriodo(Listados& listados);
/// By card. A sale that was left partly unpaid counts with its total less the debt, a split one too.
[[nodiscard]] double tarjetaDelPeriodo(Listados& listados);

} // namespace kestrane
