#pragma once

#include "platform/database/entorno_datos.h"
#include "platform/report/layout/layout.h"

#include <QStringList>

#include <memory>

namespace kestrane::report {

/// What a layout's statement gave, in the order in which the database gave it.
struct CopiaFilas
{
    QStringList columnas;
    std::shared_ptr<const database::AlmacenFilas> filas; ///< may have more columns, hidden ones, behind those
};

/// Runs the layout's statement on a connection of its own and keeps all that it gives, so that the tables may change afterwards.
/// ErrorEjecucion of the database or of the disk, with the layout's file and line.
[[nodiscard]] CopiaFilas copiaFilas(const Layout& layout, database::EntornoDatos& entorno);

} // namespace kestrane::report
