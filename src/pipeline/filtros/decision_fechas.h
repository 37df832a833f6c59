#pragma once

#include "pipeline/filtros/decision_de_filtro.h"

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
class DecisionFechas final : public DecisionDeFiltro
{
public:
    /// `conFormatos`: the report has a sheet and a ticket format, and the operator is asked which. The context outlives the object.
    DecisionFechas(ContextoEjecucion& contexto, bool conFormatos) : DecisionDeFiltro{contexto}, m_conFormatos{conFormatos} {}

    /// No format, not accepted, not complete. The store chosen before stays.
    void carga();
    /// With formats to choose and their panel not yet shown it comes first; then the period is checked and stored.
    [[nodiscard]] Aceptacion acepta(bool formatosALaVista, Fecha desde, Fecha hasta);

private:
    bool m_conFormatos;
};

/// Checks a period; when it is one, stores it and accepts the dialog.
[[nodiscard]] Aceptacion aceptaPeriodo(ContextoEjecucion& contexto, Fecha desde, Fecha hasta);

/// Stores a first day that has no last one and accepts the dialog; any day will do, one to come included.
void aceptaDesde(ContextoEjecucion& contexto, Fecha desde);

} // namespace kestrane
