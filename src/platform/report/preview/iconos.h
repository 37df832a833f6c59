#pragma once

#include <QColor>
#include <QIcon>

namespace kestrane::report {

enum class Icono {
    Panel,
    Primera,
    Anterior,
    Siguiente,
    Ultima,
    Alejar,
    Acercar,
    AnchoPagina,
    PaginaEntera,
    Buscar,
    Imprimir,
    Exportar,
    Actualizar,
    Cerrar,
    Arriba,
    Abajo,
};

/// A picture of lines in `color`, drawn for any size and density.
[[nodiscard]] QIcon icono(Icono cual, const QColor& color);

} // namespace kestrane::report
