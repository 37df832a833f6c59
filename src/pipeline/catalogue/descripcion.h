#pragma once

#include "pipeline/catalogue/fila_catalogo.h"

#include <QString>

namespace kestrane::catalogue {

/// What a report or chart is called where the form around its button is not to be seen: "Listados de Ventas: Formas de Pago", the
/// group's title in front of the caption. What is ordered in a panel is called after the button that opens it.
[[nodiscard]] QString descripcion(const FilaCatalogo& fila);

} // namespace kestrane::catalogue
