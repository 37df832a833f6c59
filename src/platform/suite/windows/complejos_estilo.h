#pragma once

#include <QStyle>
#include <QStyleOptionComplex>

#include <optional>

/// The controls of several parts, as the style paints them and lays them out.
namespace kestrane::complejos {

/// From the edge of a field to its text.
inline constexpr int SangriaCampo = 6;
/// From the edge of a card to its title, and below that.
inline constexpr int MargenTitulo = 12;

/// Paints the control; false when it is one that the style leaves to its base.
[[nodiscard]] bool pinta(const QStyle& estilo, QStyle::ComplexControl complejo, const QStyleOptionComplex& opcion, QPainter& pintor,
                         const QWidget* control);

/// Where a part lies; nothing when the base has it.
[[nodiscard]] std::optional<QRect> sitio(QStyle::ComplexControl complejo, const QStyleOptionComplex& opcion,
                                         QStyle::SubControl parte);

} // namespace kestrane::complejos
