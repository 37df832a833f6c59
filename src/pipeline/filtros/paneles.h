#pragma once

#include "run_context/contexto_ejecucion.h"

#include <array>

/// The panels of sections, employees and suppliers: their records as elements, each in its colour.
namespace kestrane {

enum class PanelDe { Secciones, Empleados, Proveedores };

/// Whether a panel begins with a button for all of its records.
enum class BotonDeTodos { Sin, Con };

/// The four colours of the theme, decimal texts, that elements without a colour of their own take in turn.
using ColoresPredefinidos = std::array<QString, 4>;

/// The code of the button for all.
inline constexpr qint32 CodigoDeTodos = -1;

/// The button for all: "Todas las Secciones", "Todos los Empleados", "Todos los Proveedores".
[[nodiscard]] ElementoPanel elementoDeTodos(PanelDe panel);

/// The live records in the order of their places, with bounds from 0 to their number: the button for all stands first, and without
/// it the last element is blank. Without records it holds the button for all alone, or is unallocated without one. Pictures of
/// employees lie in `RutaFotos`.
///
/// An element takes its record's colour, white when there is none, if the record says that it has one; else the next of
/// `colores`, and after the fourth the first again. An employee whose colour is an empty text takes the next one too.
[[nodiscard]] ArrayPanel cargaPanel(ContextoEjecucion& contexto, PanelDe panel, BotonDeTodos todos,
                                    const ColoresPredefinidos& colores);

/// The record's code: that of the button for all is -1, and one that was Null 0.
[[nodiscard]] qint32 codigoDe(const ElementoPanel& elemento);

} // namespace kestrane
