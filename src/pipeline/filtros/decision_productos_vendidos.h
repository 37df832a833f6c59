#pragma once

#include "run_context/contexto_ejecucion.h"

namespace kestrane {

/// What frmProductosVendidos sets: an employee, then a supplier, each one of them or all.
class DecisionProductosVendidos
{
public:
    /// The context outlives the object.
    explicit DecisionProductosVendidos(ContextoEjecucion& contexto) : m_contexto{contexto} {}

    void eligeEmpleado(qint32 codigo) { m_contexto.filtros.empleado = codigo; }
    void eligeProveedor(qint32 codigo) { m_contexto.filtros.proveedor = codigo; }
    void acepta() { m_contexto.FiltroAceptado = true; }

private:
    ContextoEjecucion& m_contexto;
};

} // namespace kestrane
