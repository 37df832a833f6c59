#pragma once

#include <QtGlobal>

/// The characters that need no shaping: one character, one glyph, one behind the other from left to right. Nearly all that Spanish
/// shops print; measured and painted from tables.
namespace kestrane::report {

inline constexpr int LetrasSencillas = 0x180 + 0x50 + 0x30;

/// The place of a character in those tables, -1 when it is none of them.
[[nodiscard]] constexpr int letraSencilla(char16_t c)
{
    constexpr char16_t Guion = 0xAD; // shows only where a line breaks
    if (c < 0x180)
        return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == Guion ? -1 : c;
    if (c >= 0x2010 && c < 0x2060)
        return c >= 0x2028 && c < 0x2030 ? -1 : 0x180 + (c - 0x2010);
    if (c >= 0x20A0 && c < 0x20D0)
        return 0x1D0 + (c - 0x20A0);
    return -1;
}

/// The character of that place.
[[nodiscard]] constexpr char16_t caracterSencillo(int lugar)
{
    if (lugar < 0x180)
        return static_cast<char16_t>(lugar);
    return static_cast<char16_t>(lugar < 0x1D0 ? 0x2010 + (lugar - 0x180) : 0x20A0 + (lugar - 0x1D0));
}

} // namespace kestrane::report
