#include "listings/listado_empleados.h"

#include "listings/listado_catalogo.h"

namespace kestrane {

using listings::ConsultaPorFila;
using listings::Copia;
using listings::ListadoCatalogo;

namespace {

constexpr Copia CopiasEmpleados[] = {
    {u"codigo", u"texto1"},
    {u"nombre", u"texto2"},
    {u"Apellidos", u"texto3"},
    {u"localidad", u"texto4"},
    {u"provincia", u"texto5"},
    {u"Direccion", u"texto6"},
    {u"telefono", u"texto7"},
    {u"telefono1", u"texto8"},
    {u"fechanacimiento", u"texto9"},
    {u"fechaalta", u"texto10"},
    {u"fechabaja", u"texto11"},
    {u"dni", u"texto12"},
    {u"ss", u"texto13"},
    {u"categoria", u"texto14"},
    {u"cp", u"texto16"},
    {u"observaciones", u"texto22"},
};

constexpr ConsultaPorFila Sueldos{u"Select * from sueldos where codEmpleado = ", u"codigo", u" order by  volumen asc"};

constexpr QStringView ColumnasTramos[] = {u"texto19", u"TEXTO20", u"texto21"};

/// Exactly four rows are read with no test between them: an employee has four steps or none.
void ponTramosDeSueldo(Listados& listados, Recordset& empleado, InformeNuevo& informe)
{
    Recordset sueldos;
    sueldos.Open(Sueldos.sentencia(listados, empleado), listados.contexto.ConexionTienda);
    if (sueldos.RecordCount() <= 0)
        return;
    informe.Fields(u"texto17") = sueldos.Fields(u"sueldobase");
    informe.Fields(u"texto18") = sueldos.Fields(u"valorvolumen");
    for (const QStringView columna : ColumnasTramos) {
        sueldos.MoveNext();
        informe.Fields(columna) = sueldos.Fields(u"valorvolumen");
    }
}

constexpr ListadoCatalogo Empleados{u"Select * from empleados where baja = 0", CopiasEmpleados, ponTramosDeSueldo, &Sueldos};

} // namespace

void ListadoEmpleados(Listados& listados)
{
    listings::escribeListado(listados, Empleados);
}

} // namespace kestrane
