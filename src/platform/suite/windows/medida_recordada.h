#pragma once

#include <QObject>

namespace kestrane {

/// Measures that are scaled again and again without drifting: beside each the object keeps, in a dynamic property, what it was
/// before any scaling and what it was given last. A measure that somebody else changed meanwhile counts as it stands.
class MedidaRecordada
{
public:
    /// `clave` names the measure among those of `dueno`.
    MedidaRecordada(QObject& dueno, const char* clave) : m_dueno{dueno}, m_clave{clave} {}

    /// What `actual`, scaled by `antes` until now, is at a scale of `ahora`.
    [[nodiscard]] int escalada(int actual, double antes, double ahora) const;
    /// Remembers that `puesta` is what came of the last scaling, where the object did not take the measure as it was given.
    void queda(int puesta) const;
    [[nodiscard]] bool seRecuerda() const;

private:
    QObject& m_dueno;
    const char* m_clave;
};

} // namespace kestrane
