#pragma once

#include "platform/report/preview/iconos.h"

#include <QToolButton>

namespace kestrane::report {

/// The least side of what a finger presses.
inline constexpr int LadoBoton = 44;

/// A button with a picture; `nombre` is what it does, for the tool tip and for whoever hears the screen read.
[[nodiscard]] QToolButton* botonVista(Icono cual, const QString& objeto, const QString& nombre, QWidget* padre);

/// How the preview's controls look in the colours of the palette: quiet, the focus in plain sight.
[[nodiscard]] QString hojaDeEstilo();

} // namespace kestrane::report
