#pragma once

#include "pipeline/filtros/decision_fechas.h"

namespace kestrane {

/// What frmHistoricoXEmpleados sets and checks: one employee or all, in totals or in detail, and the period.
class DecisionHistoricoEmpleados final : public DecisionDeFiltro
{
public:
    /// The context outlives the object.
    explicit DecisionHistoricoEmpleados(ContextoEjecucion& contexto) : DecisionDeFiltro{contexto} {}

    /// Not complete, no format, not accepted. The employee of before stays until one is chosen.
    void carga();
    void eligeTodos();
    void eligeEmpleado(qint32 codigo);
    /// Back from the panel of employees: all of them.
    void vuelve() { eligeTodos(); }
    void detalla();
    void totaliza();
    /// Checks the period, stores it and accepts.
    [[nodiscard]] Aceptacion acepta(Fecha desde, Fecha hasta) { return aceptaPeriodo(contexto(), desde, hasta); }
};

} // namespace kestrane
