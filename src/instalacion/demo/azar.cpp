#include "instalacion/demo/azar.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr quint64 Paso = 0x9E3779B97F4A7C15ULL;

constexpr quint64 mezcla(quint64 z)
{
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

} // namespace

Azar Azar::rama(quint64 clave) const
{
    return Azar{mezcla(m_estado ^ mezcla(clave + Paso))};
}

quint64 Azar::siguiente()
{
    m_estado += Paso;
    return mezcla(m_estado);
}

int Azar::hasta(int limite)
{
    return static_cast<int>(((siguiente() >> 32) * static_cast<quint64>(limite)) >> 32);
}

double Azar::real()
{
    return static_cast<double>(siguiente() >> 11) * 0x1.0p-53;
}

Ruleta::Ruleta(const std::vector<int>& pesos)
{
    int suma = 0;
    m_acumulado.reserve(pesos.size());
    for (const int peso : pesos)
        m_acumulado.push_back(suma += peso);
}

int Ruleta::gira(Azar& azar) const
{
    const int tirada = azar.hasta(m_acumulado.back());
    return static_cast<int>(std::ranges::upper_bound(m_acumulado, tirada) - m_acumulado.begin());
}

bool Cadencia::toca(Azar& azar)
{
    if (m_acumulado < 1000)
        m_acumulado += azar.hasta(2 * m_porMil + 1);
    if (m_acumulado < 1000)
        return false;
    m_acumulado -= 1000;
    return true;
}

} // namespace kestrane::demo
