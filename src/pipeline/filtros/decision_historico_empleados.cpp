#include "pipeline/filtros/decision_historico_empleados.h"

#include "pipeline/filtros/paneles.h"

namespace kestrane {

void DecisionHistoricoEmpleados::carga()
{
    completa(false);
    eligeFormato(false);
    sale();
}

void DecisionHistoricoEmpleados::eligeTodos()
{
    eligeEmpleado(CodigoDeTodos);
}

void DecisionHistoricoEmpleados::eligeEmpleado(qint32 codigo)
{
    contexto().filtros.empleado = codigo;
}

void DecisionHistoricoEmpleados::detalla()
{
    contexto().filtros.totalizado = false;
}

void DecisionHistoricoEmpleados::totaliza()
{
    contexto().filtros.totalizado = true;
}

} // namespace kestrane
