#pragma once

#include <QtGlobal>

#include <array>

/// What a character can be at a glance, for the two passes that read statements character by character.
namespace kestrane::jet {

enum Rasgo : quint8 {
    Detiene = 1,      ///< opens a literal or a bracketed name, or is a control character
    IniciaNumero = 2, ///< digit or point
    DeNombre = 4,     ///< letter, digit, underscore; beyond ASCII the lexer looks closer
    Blanco = 8,
    Digito = 16,
    Control = 32, ///< never part of a statement outside quotes
    // What stops a walk over the text on the next character: the bits of Detiene and IniciaNumero, moved up.
    TrasElloDetiene = 64,
    TrasElloNumero = 128, ///< behind a character of a name a digit goes on with the name
};

inline constexpr int AParadas = 6; ///< shifts the last two bits onto the first two

namespace detalle {

constexpr int clasesDe(int c)
{
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n')
        return Blanco;
    if (c < 0x20 || c == 0x7F)
        return Control | Detiene;
    if (c >= '0' && c <= '9')
        return DeNombre | IniciaNumero | Digito;
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c > 0x7F)
        return DeNombre;
    if (c == '.')
        return IniciaNumero;
    return c == '\'' || c == '#' || c == '[' ? Detiene : 0;
}

constexpr std::array<quint8, 129> tablaDeRasgos()
{
    std::array<quint8, 129> tabla{};
    for (int c = 0; c <= 128; ++c) {
        const int clases = clasesDe(c);
        const int paradas = (clases & DeNombre) != 0 ? TrasElloDetiene : TrasElloDetiene | TrasElloNumero;
        tabla[static_cast<size_t>(c)] = static_cast<quint8>(clases | paradas);
    }
    return tabla;
}

inline constexpr std::array<quint8, 129> Rasgos = tablaDeRasgos();

} // namespace detalle

/// The traits of a character; every character beyond ASCII is taken for one of a name.
[[nodiscard]] constexpr quint8 rasgos(char16_t c)
{
    return detalle::Rasgos[c < 128 ? c : 128];
}

[[nodiscard]] constexpr bool tieneRasgo(char16_t c, quint8 rasgo)
{
    return (rasgos(c) & rasgo) != 0;
}

/// Whether a point between these two characters begins a number (".5") rather than parting a table from its column.
[[nodiscard]] constexpr bool puntoIniciaNumero(char16_t anterior, char16_t siguiente)
{
    return tieneRasgo(siguiente, Digito) && anterior != u']' && !tieneRasgo(anterior, DeNombre);
}

} // namespace kestrane::jet
