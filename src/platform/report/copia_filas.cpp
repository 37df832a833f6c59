#include "platform/report/copia_filas.h"

#include "platform/database/conexion.h"
#include "platform/database/plan_sentencia.h"
#include "platform/database/sesion.h"
#include "platform/runtime/error_ejecucion.h"

using namespace Qt::StringLiterals;

namespace kestrane::report {

namespace {

CopiaFilas copiaTodas(const Layout& layout, database::EntornoDatos& entorno)
{
    Conexion conexion{entorno};
    conexion.Open(u"dsn="_s + layout.dsn);
    database::Sesion& sesion = conexion.sesion();
    // The cursor's own rows are kept as they lie: a recordset would hand out a million rows for nothing but to be copied.
    const database::Sesion::Abierta abierta = sesion.abre(layout.sentencia);
    CopiaFilas copia;
    for (const jet::ColumnaResultado& columna : abierta.plan->traduccion().columnas)
        copia.columnas << columna.nombre;
    abierta.cursor->completa();
    copia.filas = abierta.cursor->comparte();
    sesion.cierra(*abierta.plan, *abierta.cursor);
    return copia;
}

} // namespace

CopiaFilas copiaFilas(const Layout& layout, database::EntornoDatos& entorno)
{
    try {
        return copiaTodas(layout, entorno);
    } catch (const ErrorEjecucion& error) {
        throw error.conContexto(u"%1, línea %2"_s.arg(layout.fichero).arg(layout.lineaSentencia));
    }
}

} // namespace kestrane::report
