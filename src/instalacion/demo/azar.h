#pragma once

#include <QtGlobal>

#include <cstddef>
#include <iterator>
#include <vector>

namespace kestrane::demo {

/// Random numbers that are the same on every machine and compiler: 64-bit steps of a Weyl sequence with a mixing function, integer
/// arithmetic alone. No clock, no device: the same seed gives the same shop.
class Azar
{
public:
    explicit constexpr Azar(quint64 semilla) : m_estado{semilla} {}

    /// A sequence of its own for `clave`: what one concern draws does not move what another one draws.
    [[nodiscard]] Azar rama(quint64 clave) const;

    quint64 siguiente();
    /// Uniform in [0, limite); `limite` is above 0.
    [[nodiscard]] int hasta(int limite);
    /// Uniform in [minimo, maximo], both included.
    [[nodiscard]] int entre(int minimo, int maximo) { return minimo + hasta(maximo - minimo + 1); }
    /// Uniform in [0, 1), a multiple of 2^-53.
    [[nodiscard]] double real();
    /// True `tantos` times in a thousand.
    [[nodiscard]] bool porMil(int tantos) { return hasta(1000) < tantos; }
    [[nodiscard]] bool porCien(int tantos) { return hasta(100) < tantos; }

    template<class Lista>
    [[nodiscard]] decltype(auto) elige(const Lista& lista)
    {
        return lista[static_cast<std::size_t>(hasta(static_cast<int>(std::size(lista))))];
    }

private:
    quint64 m_estado;
};

/// A draw among numbered places with given weights.
class Ruleta
{
public:
    Ruleta() = default;
    explicit Ruleta(const std::vector<int>& pesos);

    [[nodiscard]] bool vacia() const { return m_acumulado.empty() || m_acumulado.back() == 0; }
    /// The place drawn; not to be asked of an empty one.
    [[nodiscard]] int gira(Azar& azar) const;

private:
    std::vector<int> m_acumulado;
};

/// Something that happens so many times in a thousand, spread more evenly than a die would: small shops get their share too.
class Cadencia
{
public:
    explicit constexpr Cadencia(int porMil) : m_porMil{porMil}, m_acumulado{porMil == 0 ? 0 : 800} {}

    [[nodiscard]] bool toca(Azar& azar);
    /// The next question is answered yes, if the thing happens in this shop at all.
    void fuerza() { m_acumulado = m_porMil == 0 ? 0 : 1000; }
    /// Takes a yes back, when the ticket at hand turned out not to allow it.
    void devuelve() { m_acumulado += 1000; }

private:
    int m_porMil;
    int m_acumulado;
};

} // namespace kestrane::demo
