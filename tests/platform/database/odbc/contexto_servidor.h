#pragma once

#include "platform/database/conformidad/contexto_motor.h"

namespace kestrane::database::conformidad {

/// Two databases of a server; all their tables are taken away first.
[[nodiscard]] std::unique_ptr<ContextoMotor> contextoServidor(const QString& dsnTienda, const QString& dsnListados);

} // namespace kestrane::database::conformidad
