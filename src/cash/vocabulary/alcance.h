#pragma once

#include "run_context/contexto_ejecucion.h"

/// What a report covers, as far as builders decide by it.
namespace kestrane {

/// Whether the period is a single day: opening cash and withdrawals are those of a day.
[[nodiscard]] inline bool esDeUnDia(const ContextoEjecucion& contexto)
{
    return contexto.FechaDesde.diaDeSerie() == contexto.FechaHasta.diaDeSerie();
}

/// Whether the lines of annulled sales are read for the chosen store alone.
[[nodiscard]] inline bool limitaLineasAnuladas(const ContextoEjecucion& contexto)
{
    return !contexto.TiendaSeleccionada.isEmpty() && contexto.MultiTienda;
}

} // namespace kestrane
