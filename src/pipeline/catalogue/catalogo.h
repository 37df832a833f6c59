#pragma once

#include "pipeline/catalogue/fila_catalogo.h"

#include <span>

namespace kestrane::catalogue {

/// All buttons of the menu, group by group.
[[nodiscard]] std::span<const FilaCatalogo> catalogo();
/// The button of that name, case ignored, or nullptr.
[[nodiscard]] const FilaCatalogo* busca(QStringView control);
/// The name of a builder that the row needs and that does not exist yet; empty when the row can run.
[[nodiscard]] QStringView constructorQueFalta(const FilaCatalogo& fila);

} // namespace kestrane::catalogue
