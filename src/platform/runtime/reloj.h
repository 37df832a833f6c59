#pragma once

#include "platform/runtime/fecha.h"

namespace kestrane {

/// Today and now, behind a face, so that a test or `--hoy` sets the day.
class Reloj
{
public:
    virtual ~Reloj() = default;
    /// The local day and time of day.
    [[nodiscard]] virtual Fecha ahora() const = 0;
    /// The local day at midnight.
    [[nodiscard]] Fecha hoy() const { return ahora().sinHora(); }
};

/// The machine's clock in its local zone.
class RelojSistema final : public Reloj
{
public:
    [[nodiscard]] Fecha ahora() const override;
};

/// A clock that stands still.
class RelojFijo final : public Reloj
{
public:
    explicit RelojFijo(Fecha ahora) : m_ahora{ahora} {}
    [[nodiscard]] Fecha ahora() const override { return m_ahora; }
    void pon(Fecha ahora) { m_ahora = ahora; }

private:
    Fecha m_ahora;
};

} // namespace kestrane
