#include "pipeline/filtros/decision_fechas.h"

#include "pipeline/filtros/utilidades.h"

namespace kestrane {

void DecisionFechas::carga()
{
    eligeFormato(false);
    sale();
    completa(false);
}

Aceptacion DecisionFechas::acepta(bool formatosALaVista, Fecha desde, Fecha hasta)
{
    if (m_conFormatos && !formatosALaVista)
        return {Aceptacion::Paso::PideFormato, {}};
    return aceptaPeriodo(contexto(), desde, hasta);
}

Aceptacion aceptaPeriodo(ContextoEjecucion& contexto, Fecha desde, Fecha hasta)
{
    if (const QString motivo = Utilidades::ComprobarFechas(desde, hasta); !motivo.isEmpty())
        return {Aceptacion::Paso::Rechazada, motivo};
    contexto.FechaDesde = desde;
    contexto.FechaHasta = hasta;
    contexto.FiltroAceptado = true;
    return {Aceptacion::Paso::Aceptada, {}};
}

void aceptaDesde(ContextoEjecucion& contexto, Fecha desde)
{
    contexto.FechaDesde = desde;
    contexto.FiltroAceptado = true;
}

} // namespace kestrane
