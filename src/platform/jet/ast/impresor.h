#pragma once

#include "platform/jet/ast/sentencia.h"

namespace kestrane::jet::ast {

/// The statement as text of the dialect again: parsing it gives an equal tree.
[[nodiscard]] QString imprime(const Sentencia& sentencia);
[[nodiscard]] QString imprime(const Expresion& expresion);

} // namespace kestrane::jet::ast
