#pragma once

#include "escritorio/aplicacion.h"

namespace kestrane::escritorio {

/// Runs the desktop program, whose layouts, help and embedded databases lie in `carpetaPrograma`: opens the shop, shows the menu
/// and serves it until the operator leaves. A second copy under the same `nombreCopia` ends at once, without a word. Returns the
/// exit status: 0, or 1 after an error that ended the run and was shown with its number and its description.
[[nodiscard]] int ejecutaPrograma(Aplicacion& aplicacion, const QString& carpetaPrograma, const QString& nombreCopia);

} // namespace kestrane::escritorio
