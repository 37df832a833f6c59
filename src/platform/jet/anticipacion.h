#pragma once

#include "platform/jet/enlazado.h"

#include <optional>

namespace kestrane::jet {

/// Turns "column = literal" at the top of a plain query's conditions into "column IN (literal, ...)" with `claves` marks, last of
/// all conditions, and gives the column. Nothing when it is no such query: the statement is then of no further use.
[[nodiscard]] std::optional<enlazado::Columna> anticipa(enlazado::Sentencia& sentencia, int literal, int claves);

} // namespace kestrane::jet
