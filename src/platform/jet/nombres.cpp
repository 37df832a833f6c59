#include "platform/jet/nombres.h"

namespace kestrane::jet {

namespace {

/// Hands out the characters without their case, one by one.
class Plegados
{
public:
    explicit Plegados(QStringView nombre) : m_actual{nombre.utf16()}, m_fin{nombre.utf16() + nombre.size()} {}

    [[nodiscard]] bool fin() const { return m_actual == m_fin; }
    char32_t siguiente()
    {
        const char16_t primera = *m_actual++;
        if (!QChar::isHighSurrogate(primera) || fin() || !QChar::isLowSurrogate(*m_actual))
            return plegado(primera);
        return plegado(QChar::surrogateToUcs4(primera, *m_actual++));
    }

private:
    const char16_t* m_actual;
    const char16_t* m_fin;
};

} // namespace

char32_t plegado(char32_t c)
{
    if (c < 128)
        return c >= U'A' && c <= U'Z' ? c + 32 : c;
    return QChar::toCaseFolded(c);
}

bool mismoNombre(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return false; // a character and its folded form take the same room
    Plegados deA{a};
    Plegados deB{b};
    while (!deA.fin() && !deB.fin()) {
        if (deA.siguiente() != deB.siguiente())
            return false;
    }
    return deA.fin() && deB.fin();
}

QString nombrePlegado(QStringView nombre)
{
    QString sinCaja;
    sinCaja.reserve(nombre.size());
    for (Plegados letras{nombre}; !letras.fin();)
        sinCaja += QChar::fromUcs4(letras.siguiente());
    return sinCaja;
}

size_t hashDeNombre(QStringView nombre)
{
    auto hash = static_cast<size_t>(nombre.size());
    for (Plegados letras{nombre}; !letras.fin();)
        hash = hash * 31 + letras.siguiente();
    return hash;
}

} // namespace kestrane::jet
