#include "pipeline/entrega.h"

#include "platform/database/recordset.h"
#include "platform/runtime/conversiones.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

void abre(Recordset& entregas, Conexion& tienda, const QString& clave)
{
    entregas.Open(u"Select * from pasardatos where terminal = '"_s + clave + u"' and texto2 = 'Listado' order by indice"_s, tienda);
}

} // namespace

std::optional<Entrega> primeraEntrega(Conexion& tienda, const QString& clave)
{
    Recordset entregas;
    abre(entregas, tienda, clave);
    if (entregas.RecordCount() < 1)
        return std::nullopt;
    const ConfiguracionRegional& regional = tienda.entorno().regional();
    return Entrega{aTexto(entregas.Fields(u"indice").valor(), regional), aTexto(entregas.Fields(u"texto1").valor(), regional)};
}

void borraPrimeraEntrega(Conexion& tienda, const QString& clave)
{
    Recordset entregas;
    abre(entregas, tienda, clave);
    if (entregas.RecordCount() > 0)
        entregas.Delete();
}

} // namespace kestrane
