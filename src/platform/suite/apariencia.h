#pragma once

#include <QtGlobal>

#include <array>

namespace kestrane {

/// The appearance of a terminal's windows. Widths and heights are twips: 1440 to the inch, at 96 points of the screen each.
struct Apariencia
{
    qint32 tema = 1;
    qint32 letra = 10; ///< size in points
    double ancho = 15360;
    double alto = 11085;

    friend bool operator==(const Apariencia&, const Apariencia&) = default;
};

/// A window size.
struct TamanoVentana
{
    double ancho = 0;
    double alto = 0;

    friend bool operator==(const TamanoVentana&, const TamanoVentana&) = default;
};

/// The size for which every window is laid out.
inline constexpr TamanoVentana TamanoDeDiseno{15360, 11085};

/// What the operator goes through, one step at a time and from the last back to the first. All ascend.
inline constexpr std::array<qint32, 4> Temas{1, 2, 3, 4};
inline constexpr std::array<qint32, 4> Letras{9, 10, 12, 14};
inline constexpr std::array<TamanoVentana, 3> Tamanos{{{15360, 11085}, {19200, 14400}, {28800, 16200}}};

/// The theme of high contrast.
inline constexpr qint32 TemaAltoContraste = 4;

} // namespace kestrane
