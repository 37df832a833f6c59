#pragma once

#include <QString>

#include <optional>

namespace kestrane {

/// Colours as the suite keeps them in tables: a decimal text, red in the lowest byte, then green, then blue. "16777215" is white,
/// "255" red. In the program a colour is 0xRRGGBB.
using Rgb = quint32;

/// The decimal text of a colour.
[[nodiscard]] QString decimalDeRgb(Rgb color);
/// The colour that a decimal text names, blanks around it allowed; nothing when it is no whole number from 0 to 16777215.
[[nodiscard]] std::optional<Rgb> rgbDeDecimal(QStringView texto);

} // namespace kestrane
