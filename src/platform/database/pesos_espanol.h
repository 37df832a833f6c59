#pragma once

#include <QtGlobal>

#include <array>

namespace kestrane::database::espanol {

/// Where a character stands: by its letter (first level), then by its accents (second level). Case is a third level, which nothing
/// here looks at. A first weight of 0 counts at the second level alone, two zeros not at all.
struct Peso
{
    quint32 letra = 0;
    quint8 acento = 0;

    friend constexpr bool operator==(const Peso&, const Peso&) = default;
};

inline constexpr quint8 SinAcento = 1;

/// The weights of one character: most have one, an accented letter has its letter's and its mark's, a ligature those of its
/// letters.
struct Pesos
{
    std::array<Peso, 3> peso{};
    int cuantos = 0;
};

/// The weights of the characters up to LimiteSimples that are one letter with at most one accent, which is nearly all that Spanish
/// texts hold: two such texts compare in one pass. A letter of 0 is none of them. Letters are in the order of `pesosDe`.
struct PesoSimple
{
    quint8 letra = 0;
    quint8 acento = 0;
};
inline constexpr char32_t LimiteSimples = 0x180;
[[nodiscard]] const std::array<PesoSimple, LimiteSimples>& pesosSimples();

[[nodiscard]] Pesos pesosDe(char32_t c);

} // namespace kestrane::database::espanol
