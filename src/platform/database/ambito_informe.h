#pragma once

#include <memory>

namespace kestrane::database {

class EstadoInforme;

/// The time in which one report is built: while it lives its connection may answer a statement without sending it. Ends with
/// TerminaInforme or with the object. Scopes of one connection may nest.
class AmbitoInforme
{
public:
    explicit AmbitoInforme(std::shared_ptr<EstadoInforme> estado);
    ~AmbitoInforme() { TerminaInforme(); }
    AmbitoInforme(AmbitoInforme&&) noexcept = default;
    AmbitoInforme& operator=(AmbitoInforme&&) = delete;

    /// Ends the scope; what was remembered is dropped. Harmless a second time.
    void TerminaInforme() noexcept;

private:
    std::shared_ptr<EstadoInforme> m_estado;
};

} // namespace kestrane::database
