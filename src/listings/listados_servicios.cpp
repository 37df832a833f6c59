#include "listings/listados_servicios.h"

#include "listings/listado_catalogo.h"

namespace kestrane {

using namespace Qt::StringLiterals;
using listings::Copia;
using listings::ListadoCatalogo;

namespace {

constexpr Copia CopiasServicios[] = {
    {u"codigocliente", u"texto1"}, {u"nombre", u"texto2"},    {u"nomsec", u"texto21"}, {u"posicion", u"texto4"},
    {u"duracion", u"numerico6"},   {u"precio", u"numerico2"}, {u"iva", u"numerico3"},
};
constexpr ListadoCatalogo Servicios{u"Select servicios.*,seccion.nombre as nomsec from servicios,seccion"
                                    u" where servicios.borrar = 0 and seccion.codigo = servicios.seccion order by servicios.",
                                    CopiasServicios, listings::ponMostrarEnCaja};

constexpr Copia CopiasArreglos[] = {
    {u"codigocliente", u"texto1"}, {u"nombre", u"texto2"},        {u"duracion", u"numerico6"},
    {u"precio", u"numerico2"},     {u"preciopago", u"numerico7"}, {u"impuesto", u"numerico3"},
};
constexpr ListadoCatalogo Arreglos{u"Select arreglos.* from arreglos where arreglos.borrar = 0 order by nombre", CopiasArreglos,
                                   listings::ponMostrarEnCaja};

constexpr Copia CopiasPack[] = {
    {u"codigocliente", u"texto1"}, {u"nombre", u"texto2"},    {u"nomsec", u"texto21"}, {u"codigo", u"texto22"},
    {u"posicion", u"texto4"},      {u"precio", u"numerico2"}, {u"iva", u"numerico3"},  {u"nomserv", u"texto7"},
};
constexpr ListadoCatalogo PackServicios{u"Select familias.*, "
                                        u"       seccion.nombre as nomsec,"
                                        u"       detalle_familia.servicio,"
                                        u"       servicios.nombre as nomserv"
                                        u"  from familias, "
                                        u"       seccion,"
                                        u"       detalle_familia,"
                                        u"       servicios "
                                        u" where familias.borrar = 0 "
                                        u"   and seccion.codigo = familias.seccion "
                                        u"   and detalle_familia.familia=familias.codigo "
                                        u"   and servicios.codigo=detalle_familia.servicio",
                                        CopiasPack, listings::ponMostrarEnCaja};

/// texto8: the day of the pack on which the service is given.
void ponDia(Listados& listados, Recordset& origen, InformeNuevo& informe)
{
    listings::ponMostrarEnCaja(listados, origen, informe);
    informe.Fields(u"texto8") = u"Dia "_s + listados.texto(origen.Fields(u"dia"));
}

constexpr ListadoCatalogo PackSpa{u"Select cabecera_pack_spa.*, "
                                  u"       seccion.nombre as nomsec,"
                                  u"       detalle_pack_spa.codservicio,"
                                  u"       detalle_pack_spa.dia,"
                                  u"       servicios.nombre as nomserv"
                                  u"  from cabecera_pack_spa, "
                                  u"       seccion,"
                                  u"       detalle_pack_spa,"
                                  u"       servicios "
                                  u" where cabecera_pack_spa.borrar = 0 "
                                  u"   and seccion.codigo = cabecera_pack_spa.seccion "
                                  u"   and detalle_pack_spa.codigo=cabecera_pack_spa.codigo "
                                  u"   and servicios.codigo=detalle_pack_spa.codservicio",
                                  CopiasPack, ponDia};

} // namespace

void ListadoServicios(Listados& listados)
{
    listings::escribeListado(listados, Servicios, listados.contexto.filtros.columnaOrden);
}

void ListadoArreglos(Listados& listados)
{
    listings::escribeListado(listados, Arreglos);
}

void ListadoPackServicios(Listados& listados)
{
    listings::escribeListado(listados, PackServicios);
}

void ListadoPackSpa(Listados& listados)
{
    listings::escribeListado(listados, PackSpa);
}

} // namespace kestrane
