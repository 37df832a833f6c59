#pragma once

#include "platform/suite/apariencia.h"

#include <QWidget>

namespace kestrane {

/// The suite's object for the sizes of windows.
class EscaladorVentanas
{
public:
    /// Multiplies least and greatest sizes, margins, spacings, icons and letters of the window and its controls by `destino` over
    /// `origen`: what lies across by the widths, what stands upright by the heights, the rest by the lesser of both. The window
    /// itself is resized where it has a size of its own. Where the operator has drawn the window to another size meanwhile, its
    /// controls go from the size that they were scaled to last. Scales multiply from call to call, and to and fro comes out where
    /// it began. A size that is none leaves its direction as it is; no scale makes a window smaller than half or larger than four
    /// times what it was built.
    void EscalarForm(QWidget& ventana, TamanoVentana destino, TamanoVentana origen) const;
};

} // namespace kestrane
