#pragma once

#include <QString>

namespace kestrane {

/// The path under which this machine opens the file that `ruta` names. Within the program paths are formed with "\"; both "\" and
/// "/" part folders here. A relative path lies in `carpeta`, or in the working folder when that is empty. "" stays "".
[[nodiscard]] QString rutaDeMaquina(const QString& ruta, const QString& carpeta = {});

} // namespace kestrane
