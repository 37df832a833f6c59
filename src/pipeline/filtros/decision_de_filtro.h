#pragma once

#include "run_context/contexto_ejecucion.h"

namespace kestrane {

/// What the dialogs share that ask for a period: the box "Completo", the format, and being left.
class DecisionDeFiltro
{
public:
    void completa(bool marcada) { m_contexto.CajaCompleta = marcada; }
    void eligeFormato(bool ticket) { m_contexto.FormatoTicket = ticket; }
    void sale() { m_contexto.FiltroAceptado = false; }

protected:
    /// The context outlives the object.
    explicit DecisionDeFiltro(ContextoEjecucion& contexto) : m_contexto{contexto} {}
    ~DecisionDeFiltro() = default;
    DecisionDeFiltro(const DecisionDeFiltro&) = default;

    [[nodiscard]] ContextoEjecucion& contexto() const { return m_contexto; }

private:
    ContextoEjecucion& m_contexto;
};

} // namespace kestrane
