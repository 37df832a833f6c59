#pragma once

#include "run_context/elemento_panel.h"

#include <QPen>
#include <QPushButton>

namespace kestrane {

/// A button of a TilePanel: the element's picture, if it can be read, and its text, broken over lines, on its colour. Black or
/// white letters, whichever is read better.
class Ficha final : public QPushButton
{
    Q_OBJECT

public:
    Ficha(const ElementoPanel& elemento, QWidget* padre);

    [[nodiscard]] const ElementoPanel& elemento() const { return m_elemento; }
    /// The back colour; one that is not valid is the theme's for buttons.
    void ponColor(const QColor& color);
    [[nodiscard]] const QColor& color() const { return m_color; }
    [[nodiscard]] QColor colorDeTexto() const;
    [[nodiscard]] bool conImagen() const { return !m_imagen.isNull(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int ancho) const override;

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    [[nodiscard]] int anchoDeImagen() const;
    [[nodiscard]] QPen borde() const;
    void pintaMarca(QPainter& pintor, const QRectF& caja) const;

    ElementoPanel m_elemento;
    QPixmap m_imagen;
    QColor m_color;
};

} // namespace kestrane
