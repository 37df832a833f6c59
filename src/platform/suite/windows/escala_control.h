#pragma once

#include <QSize>
#include <QWidget>

#include <algorithm>

namespace kestrane {

/// The scale of a window in both directions.
struct EscalaControl
{
    double ancho = 1;
    double alto = 1;

    [[nodiscard]] double menor() const { return std::min(ancho, alto); }
};

struct CambioEscala
{
    EscalaControl antes;
    EscalaControl ahora;
};

/// Least and greatest size, margins, icon, and the layout of one control.
void escalaControl(QWidget& control, const CambioEscala& cambio);

/// The size of a window that has one: shown, or given before it is. `tamano` is what it was before its controls were scaled. A
/// window that fills the screen keeps filling it.
void escalaTamano(QWidget& ventana, QSize tamano, const CambioEscala& cambio);

} // namespace kestrane
