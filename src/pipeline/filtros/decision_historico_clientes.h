#pragma once

#include "pipeline/filtros/decision_fechas.h"

namespace kestrane {

/// What frmHistoricoXClientes sets and checks: the period, the sections, products or services or both.
class DecisionHistoricoClientes final : public DecisionDeFiltro
{
public:
    enum class Ventas { Productos, Servicios, Ambos };

    /// The context outlives the object.
    explicit DecisionHistoricoClientes(ContextoEjecucion& contexto) : DecisionDeFiltro{contexto} {}

    /// No section, no format, not accepted. Whether the cash is complete and whether all sections were meant stays as it was: the
    /// report is built even when the dialog is left.
    void carga();
    /// Where only products are sold that is not asked.
    [[nodiscard]] bool preguntaVentas() const;
    /// A press on a section: it is the one, and not all of them.
    void eligeSeccion(qint32 codigo);
    /// The box for all sections. The section that was pressed stays.
    void todasLasSecciones(bool marcada);
    /// Checks the period, stores it and what is sold, and accepts; without a section all of them are meant. `ventas` counts where
    /// it is asked.
    [[nodiscard]] Aceptacion acepta(Fecha desde, Fecha hasta, Ventas ventas);
};

} // namespace kestrane
