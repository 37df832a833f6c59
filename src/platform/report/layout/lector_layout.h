#pragma once

#include "platform/report/layout/layout.h"

namespace kestrane::report {

/// Reads a layout file with the shared parts that it uses, which lie below its folder. `ruta` is the machine's.
/// ErrorEjecucion LayoutIncorrecto with file, line, what was found and what was expected: no such file, not XML, an unknown element
/// or attribute, a value that is none, a broken expression, a style, part or group that does not exist.
[[nodiscard]] Layout leeLayout(const QString& ruta);

/// The same from bytes, for tests and fuzzing; `carpeta` is where shared parts lie.
[[nodiscard]] Layout leeLayout(const QByteArray& xml, const QString& fichero, const QString& carpeta);

} // namespace kestrane::report
