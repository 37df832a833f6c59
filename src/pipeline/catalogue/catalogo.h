#pragma once

#include "pipeline/catalogue/fila_catalogo.h"

#include <span>

namespace kestrane::catalogue {

/// All buttons of the menu that do something or stand in it for good, group by group.
[[nodiscard]] std::span<const FilaCatalogo> catalogo();
/// The button of that name, case ignored, or nullptr.
[[nodiscard]] const FilaCatalogo* busca(QStringView control);
/// The name of a builder or chart that the row needs and that does not exist yet; empty when there is none.
[[nodiscard]] QStringView queFalta(const FilaCatalogo& fila);
/// True for a report or chart of which nothing is missing.
[[nodiscard]] bool estaDisponible(const FilaCatalogo& fila);

/// A group of the menu.
struct GrupoMenu
{
    Grupo grupo = Grupo::Ninguno;
    QStringView control; ///< name of its frame
    QStringView titulo;
};

/// The groups in the order in which the form holds them; the panel frAviso is none of them.
[[nodiscard]] std::span<const GrupoMenu> grupos();

} // namespace kestrane::catalogue
