#include "platform/database/utf8.h"

#include <bit>
#include <cstring>

namespace kestrane::database {

namespace {

constexpr char32_t ByteSuelto = 0xDC00; ///< plus the byte: never a code point of a text

char* escribe(char32_t c, char* destino)
{
    const auto sigue = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (c < 0x800) {
        *destino++ = static_cast<char>(0xC0 | (c >> 6));
    } else if (c < 0x10000) {
        *destino++ = static_cast<char>(0xE0 | (c >> 12));
        *destino++ = sigue(c >> 6);
    } else {
        *destino++ = static_cast<char>(0xF0 | (c >> 18));
        *destino++ = sigue(c >> 12);
        *destino++ = sigue(c >> 6);
    }
    *destino++ = sigue(c);
    return destino;
}

/// Narrows the ASCII text in front, eight units at a time while they last; returns how many.
qsizetype copiaAscii(QStringView texto, char* destino)
{
    const char16_t* const unidades = texto.utf16();
    const qsizetype total = texto.size();
    qsizetype i = 0;
    for (; i + 4 <= total; i += 4) {
        quint64 cuatro = 0;
        std::memcpy(&cuatro, unidades + i, sizeof cuatro);
        if (cuatro & 0xFF80FF80FF80FF80u)
            break;
        for (qsizetype j = i; j < i + 4; ++j)
            destino[j] = static_cast<char>(unidades[j]);
    }
    while (i < total && unidades[i] < 0x80) {
        destino[i] = static_cast<char>(unidades[i]);
        ++i;
    }
    return i;
}

constexpr bool esContinuacion(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Least code point that needs so many bytes: shorter spellings of a longer form are no UTF-8.
constexpr char32_t Minimos[] = {0, 0, 0x80, 0x800, 0x10000};

} // namespace

qsizetype aUtf8(QStringView texto, char* destino)
{
    const qsizetype ascii = copiaAscii(texto, destino);
    char* escrito = destino + ascii;
    for (qsizetype i = ascii; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c.unicode() < 0x80)
            *escrito++ = static_cast<char>(c.unicode());
        else if (!c.isSurrogate())
            escrito = escribe(c.unicode(), escrito);
        else if (c.isHighSurrogate() && i + 1 < texto.size() && texto[i + 1].isLowSurrogate())
            escrito = escribe(QChar::surrogateToUcs4(c, texto[++i]), escrito);
        else
            escrito = escribe(QChar::ReplacementCharacter, escrito);
    }
    return escrito - destino;
}

char32_t siguienteUtf8(const char*& i, const char* fin)
{
    const auto primero = static_cast<unsigned char>(*i++);
    if (primero < 0x80)
        return primero;
    const int bytes = std::countl_one(primero);
    if (bytes < 2 || bytes > 4 || fin - i < bytes - 1)
        return ByteSuelto + primero;
    char32_t c = primero & (0x7F >> bytes);
    for (int j = 0; j < bytes - 1; ++j) {
        if (!esContinuacion(i[j]))
            return ByteSuelto + primero;
        c = c << 6 | (static_cast<unsigned char>(i[j]) & 0x3F);
    }
    if (c < Minimos[bytes] || c > 0x10FFFF || QChar::isSurrogate(c))
        return ByteSuelto + primero;
    i += bytes - 1;
    return c;
}

char32_t anteriorUtf8(const char*& i, const char* inicio)
{
    const char* const fin = i;
    const char* const limite = fin - inicio > 4 ? fin - 4 : inicio;
    const char* primero = fin - 1;
    while (primero > limite && esContinuacion(*primero))
        --primero;
    const char* leido = primero;
    const char32_t c = siguienteUtf8(leido, fin);
    if (leido == fin) {
        i = primero;
        return c;
    }
    i = fin - 1;
    return ByteSuelto + static_cast<unsigned char>(*i);
}

} // namespace kestrane::database
