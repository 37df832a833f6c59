#include "pipeline/fragmentos_sql.h"

#include "platform/runtime/conversiones.h"

namespace kestrane {

using namespace Qt::StringLiterals;

QString diaSql(Fecha dia)
{
    return u'#' + fechaParaSql(dia) + u'#';
}

QString entreFechas(const ContextoEjecucion& contexto)
{
    return diaSql(contexto.FechaDesde) + u" and "_s + diaSql(contexto.FechaHasta);
}

QString patronTienda(const ContextoEjecucion& contexto)
{
    return u"'%"_s + contexto.TiendaSeleccionada + u'\'';
}

} // namespace kestrane
