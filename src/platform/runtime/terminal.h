#pragma once

#include <cstdio>

namespace kestrane {

/// True when what is written to the open file `fichero` goes to a terminal, where somebody watches it.
[[nodiscard]] bool esTerminal(std::FILE* fichero);

/// False when the stream `fichero` was closed by whoever started the program.
[[nodiscard]] bool estaAbierto(std::FILE* fichero);

/// From now on a pipe whose reader is gone refuses what is written, in place of ending the program without a word.
void rehusaTuberiasRotas();

} // namespace kestrane
