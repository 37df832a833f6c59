#pragma once

#include <QPainter>
#include <QStyleOption>

/// What the style paints with: shapes in the colours of a control's palette. Rectangles are points of the screen.
namespace kestrane::trazos {

/// A rounded card.
void tarjeta(QPainter& pintor, const QRect& sitio, const QPalette& colores);
/// A field to type into or choose from; with the ring when it has the keyboard.
void campo(QPainter& pintor, const QRect& sitio, const QStyleOption& opcion);
/// The border of a field alone.
void bordeDeCampo(QPainter& pintor, const QRect& sitio, const QStyleOption& opcion);
/// A button of any kind: at rest, below the pointer, pressed, switched on, the default one.
void boton(QPainter& pintor, const QStyleOption& opcion, bool porDefecto);
/// The colours in which the text of that button is written.
[[nodiscard]] QPalette coloresDeTexto(const QStyleOption& opcion, bool porDefecto);
/// The ring around what has the keyboard.
void anillo(QPainter& pintor, const QRect& sitio, const QPalette& colores);
/// The box of an option, with its tick.
void casilla(QPainter& pintor, const QStyleOption& opcion);
/// The circle of an option among others, with its point.
void circulo(QPainter& pintor, const QStyleOption& opcion);
/// A small open arrow in the middle of `sitio`.
void flecha(QPainter& pintor, const QRect& sitio, const QColor& color, Qt::ArrowType hacia);
/// The groove of a bar.
void surco(QPainter& pintor, const QRect& sitio, const QPalette& colores);
/// A rod with round ends, as bars are made of.
void barra(QPainter& pintor, const QRect& sitio, const QColor& color);

} // namespace kestrane::trazos
