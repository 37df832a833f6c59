#pragma once

#include <cstdio>

namespace kestrane {

/// True when what is written to the open file `fichero` goes to a terminal, where somebody watches it.
[[nodiscard]] bool esTerminal(std::FILE* fichero);

/// False when the stream `fichero` was closed by whoever started the program.
[[nodiscard]] bool estaAbierto(std::FILE* fichero);

} // namespace kestrane
