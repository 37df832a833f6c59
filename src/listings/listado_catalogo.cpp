#include "listings/listado_catalogo.h"

namespace kestrane::listings {

using namespace Qt::StringLiterals;

namespace {

void anadeFila(Listados& listados, const ListadoCatalogo& listado, Recordset& origen, InformeNuevo& informe)
{
    informe.AddNew();
    for (const Copia& copia : listado.copias)
        informe.Fields(copia.columna) = origen.Fields(copia.campo);
    if (listado.paso)
        listado.paso(listados, origen, informe);
    informe.Update();
}

void anuncia(const ConsultaPorFila& consulta, Recordset& origen)
{
    origen.Anticipa(consulta.cabeza.toString(), consulta.campo.toString(), consulta.cola.toString());
}

} // namespace

QString ConsultaPorFila::sentencia(const Listados& listados, Recordset& origen) const
{
    return cabeza.toString() + listados.texto(origen.Fields(campo)) + cola.toString();
}

void escribeListado(Listados& listados, const ListadoCatalogo& listado, const QString& orden)
{
    InformeNuevo informe{listados, cabeceras::Empresa};
    Recordset origen;
    origen.Open(listado.consulta.toString() + orden, listados.contexto.ConexionTienda);
    if (origen.RecordCount() <= 0)
        return;
    if (listado.porFila)
        anuncia(*listado.porFila, origen);
    while (!origen.Eof()) {
        anadeFila(listados, listado, origen, informe);
        origen.MoveNext();
        listados.progreso.IncrementaBarra();
    }
}

void ponMostrarEnCaja(Listados&, Recordset& origen, InformeNuevo& informe)
{
    const Valor mostrar = origen.Fields(u"mostrarencaja");
    const bool oculto = !mostrar.esNulo() && mostrar.entero32() == 0;
    informe.Fields(u"texto5") = oculto ? u"No"_s : u"Si"_s;
}

} // namespace kestrane::listings
