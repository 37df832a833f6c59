#include "platform/suite/permisos_empleado.h"

#include "platform/database/recordset.h"

using namespace Qt::StringLiterals;

namespace kestrane {

Permisos PermisosEnTabla::leePermisos(Conexion& conexion, qint32 empleado)
{
    Permisos permisos;
    if (!conexion.tieneTabla(u"permisos_listados"))
        return permisos;
    Recordset filas;
    filas.Open(u"Select control from permisos_listados where permitido = 0 and empleado = "_s + QString::number(empleado),
               conexion);
    for (Recordset& fila : filas)
        permisos.veda(fila.Fields(u"control").texto());
    return permisos;
}

} // namespace kestrane
