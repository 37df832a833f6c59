#include "listings/listados_maestros.h"

#include "listings/listado_catalogo.h"

namespace kestrane {

using namespace Qt::StringLiterals;
using listings::Copia;
using listings::ListadoCatalogo;

namespace {

constexpr Copia CopiasSecciones[] = {{u"codigocliente", u"texto1"}, {u"nombre", u"texto2"}};
constexpr ListadoCatalogo Secciones{u"Select * from seccion where borrar = 0", CopiasSecciones};

constexpr Copia CopiasFormasPago[] = {{u"codigocliente", u"texto1"}, {u"nombre", u"texto2"}, {u"observaciones", u"texto3"}};
constexpr ListadoCatalogo FormasPago{u"Select * from formapago where borrar = 0", CopiasFormasPago};

constexpr Copia CopiasProveedores[] = {
    {u"codigocliente", u"texto1"}, {u"nombre", u"texto2"}, {u"Direccion", u"texto3"}, {u"cp", u"texto4"},
    {u"telefono", u"texto5"},      {u"fax", u"texto6"},    {u"contacto", u"texto7"},  {u"nif", u"texto8"},
};
constexpr ListadoCatalogo Proveedores{u"Select * from proveedores where borrar = 0", CopiasProveedores};

/// texto7: both contacts, and nothing when there is neither.
void ponContactos(Listados& listados, Recordset& origen, InformeNuevo& informe)
{
    informe.Fields(u"texto7") =
        listados.texto(origen.Fields(u"contacto1")) + u" / "_s + listados.texto(origen.Fields(u"contacto2"));
    if (informe.Fields(u"texto7").texto().trimmed() == u"/"_s)
        informe.Fields(u"texto7") = u""_s;
}

constexpr Copia CopiasTalleres[] = {
    {u"codigocliente", u"texto1"}, {u"nombre", u"texto2"}, {u"Direccion", u"texto3"}, {u"cp", u"texto4"},
    {u"telefono1", u"texto5"},     {u"email", u"texto6"},  {u"Cif", u"texto8"},
};
constexpr ListadoCatalogo Talleres{u"Select * from talleres where borrar = 0", CopiasTalleres, ponContactos};

} // namespace

void ListadoSecciones(Listados& listados)
{
    listings::escribeListado(listados, Secciones);
}

void ListadoFormasPago(Listados& listados)
{
    listings::escribeListado(listados, FormasPago);
}

void ListadoProveedores(Listados& listados)
{
    listings::escribeListado(listados, Proveedores);
}

void ListadoTalleres(Listados& listados)
{
    listings::escribeListado(listados, Talleres);
}

} // namespace kestrane
