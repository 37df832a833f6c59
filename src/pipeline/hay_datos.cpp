#include "pipeline/hay_datos.h"

#include "platform/database/recordset.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

bool tieneFilas(const QString& sentencia, Conexion& listados)
{
    Recordset filas;
    filas.Open(sentencia, listados);
    return filas.RecordCount() >= 1;
}

} // namespace

bool HayDatos(Conexion& listados)
{
    return tieneFilas(u"Select * from informes"_s, listados) || tieneFilas(u"Select * from subinformes"_s, listados);
}

} // namespace kestrane
