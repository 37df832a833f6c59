#pragma once

#include <QPalette>
#include <QString>
#include <QWidget>

namespace kestrane {

/// The suite's object for colours. Colours are decimal texts (color_decimal.h), themes numbers of `Temas`; one that is none is the
/// first.
class PaletaColores
{
public:
    /// Paints the controls of the window in the theme, and what belongs to no window (message boxes, tool tips). A colour that the
    /// window gives a control afterwards stays until it is painted again, which leaves nothing of an earlier theme. What a window
    /// may ask for is in propiedades_ventana.h.
    void PintarForm(QWidget& ventana, qint32 tema) const;
    [[nodiscard]] QString DarColorFondo(qint32 tema) const;
    [[nodiscard]] QString DarColorResalte(qint32 tema) const;
    [[nodiscard]] QString DarColorBoton(qint32 tema) const;
    [[nodiscard]] QString DarColorPredefinido1(qint32 tema) const;
    [[nodiscard]] QString DarColorPredefinido2(qint32 tema) const;
    [[nodiscard]] QString DarColorPredefinido3(qint32 tema) const;
    [[nodiscard]] QString DarColorPredefinido4(qint32 tema) const;
};

/// The theme as the toolkit takes it, for large windows. For what paints itself.
[[nodiscard]] QPalette coloresDe(qint32 tema);

} // namespace kestrane
