#pragma once

#include <QIODevice>

#include <cstdio>

namespace kestrane {

/// True when what is written to the open file `fichero` goes to a terminal, where somebody watches it.
[[nodiscard]] bool esTerminal(std::FILE* fichero);
[[nodiscard]] bool esTerminal(const QIODevice& salida);

/// False when the stream `fichero` was closed by whoever started the program.
[[nodiscard]] bool estaAbierto(std::FILE* fichero);

/// Who watches the errors as they come: nobody, somebody at a terminal, or somebody at a terminal to which the results go too.
enum class DestinoErrores { Fichero, Terminal, TerminalConResultados };

/// Who watches what is written to the open files `errores` and `salida`.
[[nodiscard]] DestinoErrores destinoErrores(std::FILE* errores, std::FILE* salida);

/// From now on a pipe whose reader is gone refuses what is written, in place of ending the program without a word.
void rehusaTuberiasRotas();

} // namespace kestrane
