#pragma once

#include <QString>

/// What a file may be put in the place of. A file that takes its name when it is whole would take the name of whatever lies there:
/// of a pipe or a device too, which then is none any more.
namespace kestrane {

/// Where a write to `nombre` ends up: links are followed, the last one also where its file is not there yet.
[[nodiscard]] QString sigueEnlaces(const QString& nombre);

/// Why no file may take the place of `fichero`, for the middle of a Spanish sentence; "" when one may: nothing lies there, or a
/// regular file that may be written.
[[nodiscard]] QString estorboEn(const QString& fichero);

/// Where a write to `nombre` ends up. ErrorDeSalida that names it when no file may be put there.
[[nodiscard]] QString destinoDeEscritura(const QString& nombre);

} // namespace kestrane
