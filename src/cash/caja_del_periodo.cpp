#include "cash/caja_del_periodo.h"

#include "pipeline/fragmentos_sql.h"
#include "platform/database/recordset.h"

namespace kestrane {

using namespace Qt::StringLiterals;

bool esDeUnDia(const ContextoEjecucion& contexto)
{
    return contexto.FechaDesde.diaDeSerie() == contexto.FechaHasta.diaDeSerie();
}

Valor importeDeCajaInicial(Listados& listados)
{
    ContextoEjecucion& contexto = listados.contexto;
    Recordset cajas;
    cajas.Open(u"Select * from caja_inicial where fecha = "_s + diaSql(contexto.FechaDesde) + u" and tienda like "_s +
                   patronTienda(contexto),
               contexto.ConexionTienda);
    return cajas.RecordCount() > 0 ? Valor{cajas.Fields(u"importe").doble()} : Valor{};
}

double sumaDelPeriodo(Listados& listados, const QString& sentencia)
{
    Recordset suma;
    suma.Open(sentencia, listados.contexto.ConexionTienda);
    const Valor valor = suma.Fields(u"Valor");
    return valor.esNulo() ? 0 : valor.doble();
}

} // namespace kestrane
