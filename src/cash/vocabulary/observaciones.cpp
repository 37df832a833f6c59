#include "cash/vocabulary/observaciones.h"

#include "cash/vocabulary/nombres.h"

namespace kestrane {

using namespace Qt::StringLiterals;

void copiaObservaciones(Listados& listados, const QString& sentencia)
{
    ContextoEjecucion& contexto = listados.contexto;
    contexto.ConexionListados.Execute(u"Delete * from SubInformes"_s);
    Recordset subinformes;
    subinformes.Open(u"Select * from Subinformes"_s, contexto.ConexionListados, CursorType::Keyset, LockType::Optimistic);
    Recordset observaciones;
    observaciones.Open(sentencia, contexto.ConexionTienda);
    if (observaciones.RecordCount() <= 0)
        return;
    for (Recordset& observacion : observaciones) {
        subinformes.AddNew();
        subinformes.Fields(u"Fecha1") = observacion.Fields(u"fecha");
        subinformes.Fields(u"fecha2") = observacion.Fields(u"hora");
        subinformes.Fields(u"texto1") = NombreCortoEmpleado(listados, observacion.Fields(u"empleado"));
        subinformes.Fields(u"texto2") = observacion.Fields(u"observacion");
        subinformes.Update();
        listados.progreso.IncrementaBarra();
    }
}

} // namespace kestrane
