#pragma once

#include <QWidget>

namespace kestrane {

/// The suite's object for the fonts of windows.
class AplicadorLetra
{
public:
    /// Sets all letters of the window in one family, `tamanoLetra` points high before scaling; titles stay as much larger as they
    /// are. Message boxes and tool tips have the same letters. A setting that is no size gives the one of a new terminal.
    void AplicarLetra(QWidget& ventana, qint32 tamanoLetra) const;
};

} // namespace kestrane
