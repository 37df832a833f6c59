#pragma once

#include <QtGlobal>

#include <compare>

namespace kestrane::demo {

/// An amount in quarters of the currency unit. All amounts of a demo shop are multiples of 0.25, so that their sums are exact in
/// any order and on any engine.
struct Dinero
{
    qint32 cuartos = 0;

    /// The nearest amount; halves go up.
    [[nodiscard]] static constexpr Dinero euros(double importe)
    {
        const double escalado = importe * 4 + (importe < 0 ? -0.5 : 0.5);
        return Dinero{static_cast<qint32>(escalado)};
    }
    [[nodiscard]] constexpr double enEuros() const { return cuartos * 0.25; }

    friend constexpr auto operator<=>(Dinero, Dinero) = default;
    friend constexpr Dinero operator+(Dinero a, Dinero b) { return Dinero{a.cuartos + b.cuartos}; }
    friend constexpr Dinero operator-(Dinero a, Dinero b) { return Dinero{a.cuartos - b.cuartos}; }
    friend constexpr Dinero operator-(Dinero a) { return Dinero{-a.cuartos}; }
    constexpr Dinero& operator+=(Dinero otro) { return *this = *this + otro; }
    constexpr Dinero& operator-=(Dinero otro) { return *this = *this - otro; }
};

} // namespace kestrane::demo
