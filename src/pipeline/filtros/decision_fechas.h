#pragma once

#include "run_context/contexto_ejecucion.h"

namespace kestrane {

/// What an attempt to accept a dialog comes to.
struct Aceptacion
{
    enum class Paso {
        PideFormato, ///< the panel of formats is to be shown; nothing was read
        Rechazada,   ///< the dialog stays; the operator is told `motivo`
        Aceptada,    ///< the dialog closes
    };

    Paso paso = Paso::Rechazada;
    QString motivo;

    friend bool operator==(const Aceptacion&, const Aceptacion&) = default;
};

/// What frmFechas sets and checks: the period, the format, and whether the cash is complete.
class DecisionFechas
{
public:
    /// `conFormatos`: the report has a sheet and a ticket format, and the operator is asked which. The context outlives the object.
    DecisionFechas(ContextoEjecucion& contexto, bool conFormatos) : m_contexto{contexto}, m_conFormatos{conFormatos} {}

    /// No format, not accepted, not complete. The store chosen before stays.
    void carga();
    void completa(bool marcada) { m_contexto.CajaCompleta = marcada; }
    void eligeFormato(bool ticket) { m_contexto.FormatoTicket = ticket; }
    /// With formats to choose and their panel not yet shown it comes first; then the period is checked and stored.
    [[nodiscard]] Aceptacion acepta(bool formatosALaVista, Fecha desde, Fecha hasta);
    void sale() { m_contexto.FiltroAceptado = false; }

private:
    ContextoEjecucion& m_contexto;
    bool m_conFormatos;
};

/// Checks a period; when it is one, stores it and accepts the dialog.
[[nodiscard]] Aceptacion aceptaPeriodo(ContextoEjecucion& contexto, Fecha desde, Fecha hasta);

} // namespace kestrane
