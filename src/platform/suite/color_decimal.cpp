#include "platform/suite/color_decimal.h"

namespace kestrane {

namespace {

constexpr quint32 Blanco = 0xffffff;

/// From red in the lowest byte to red in the highest, and back.
constexpr quint32 vuelto(quint32 color)
{
    return (color & 0xff) << 16 | (color & 0xff00) | color >> 16;
}

} // namespace

QString decimalDeRgb(Rgb color)
{
    return QString::number(vuelto(color & Blanco));
}

std::optional<Rgb> rgbDeDecimal(QStringView texto)
{
    bool entero = false;
    const quint32 decimal = texto.trimmed().toUInt(&entero);
    if (!entero || decimal > Blanco)
        return std::nullopt;
    return vuelto(decimal);
}

} // namespace kestrane
