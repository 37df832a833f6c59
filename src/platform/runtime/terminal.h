#pragma once

#include <cstdio>

namespace kestrane {

/// True when what is written to the open file `fichero` goes to a terminal, where somebody watches it.
[[nodiscard]] bool esTerminal(std::FILE* fichero);

} // namespace kestrane
