#include "pipeline/informe_nuevo.h"

namespace kestrane {

using namespace Qt::StringLiterals;

InformeNuevo::InformeNuevo(Listados& listados, Cabecera cabecera)
    : InformeNuevo{listados, cabecera, listados.contexto.ConexionListados}
{
}

InformeNuevo::InformeNuevo(Listados& listados, Cabecera cabecera, Conexion& conexion) : m_listados{listados}, m_cabecera{cabecera}
{
    conexion.Execute(u"Delete * from informes"_s);
    m_filas.Open(u"Select * from informes"_s, conexion, CursorType::Keyset, LockType::Optimistic);
}

void InformeNuevo::AddNew(Cabecera cabecera)
{
    const ContextoEjecucion& contexto = m_listados.contexto;
    m_filas.AddNew();
    if (cabecera.testFlag(ColumnaCabecera::Empresa))
        Fields(u"TEXTO35") = contexto.NombreEmpresa;
    if (cabecera.testFlag(ColumnaCabecera::Direccion))
        Fields(u"TEXTO34") = contexto.DireccionEmpresa;
    if (cabecera.testFlag(ColumnaCabecera::DireccionVacia))
        Fields(u"TEXTO34") = u""_s;
    if (cabecera.testFlag(ColumnaCabecera::Tienda) && contexto.MultiTienda)
        Fields(u"texto33") = u"Tienda = "_s + contexto.TiendaSeleccionada;
    if (!cabecera.testFlag(ColumnaCabecera::Periodo))
        return;
    Fields(u"Fecha1") = contexto.FechaDesde;
    Fields(u"fecha2") = contexto.FechaHasta;
}

void InformeNuevo::anade(QStringView columna, const QString& texto)
{
    Fields(columna) = m_listados.texto(Fields(columna)) + texto;
}

} // namespace kestrane
