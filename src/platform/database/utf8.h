#pragma once

#include <QStringView>

#include <algorithm>

namespace kestrane::database {

/// Bytes that are enough for the UTF-8 form of `unidades` UTF-16 units.
[[nodiscard]] constexpr qsizetype maximoUtf8(qsizetype unidades)
{
    return unidades * 3;
}

/// Writes `texto` in UTF-8 to `destino`, which has room for maximoUtf8, and returns the bytes written. Half a surrogate pair gives
/// U+FFFD. No ending zero.
qsizetype aUtf8(QStringView texto, char* destino);

/// The code point at `i`, which moves behind it; bytes that are no UTF-8 stand for U+DC80 and on, one by one, so that different
/// bytes stay different.
[[nodiscard]] char32_t siguienteUtf8(const char*& i, const char* fin);
/// The code point before `i`, which moves before it, down to `inicio`.
[[nodiscard]] char32_t anteriorUtf8(const char*& i, const char* inicio);

/// Code points of a text: what a column's width counts.
[[nodiscard]] inline qsizetype puntosDeCodigo(QStringView texto)
{
    return std::count_if(texto.begin(), texto.end(), [](QChar c) { return !c.isLowSurrogate(); });
}

} // namespace kestrane::database
