#include "listings/listados_articulos.h"

#include "listings/listado_catalogo.h"

namespace kestrane {

using listings::Copia;
using listings::ListadoCatalogo;

namespace {

constexpr Copia CopiasTallas[] = {{u"descripcioncorta", u"texto1"}, {u"nombre", u"texto2"}};
constexpr ListadoCatalogo Tallas{u"Select * from tallas where borrar = 0", CopiasTallas};

constexpr Copia SoloNombre[] = {{u"nombre", u"texto2"}};
constexpr ListadoCatalogo Marcas{u"Select Nombre from Marcas where borrar = 0", SoloNombre};
constexpr ListadoCatalogo Colores{u"Select Nombre from colorestextil where borrar = 0", SoloNombre};

} // namespace

void ListadoTallas(Listados& listados)
{
    listings::escribeListado(listados, Tallas);
}

void ListadoMarcas(Listados& listados)
{
    listings::escribeListado(listados, Marcas);
}

void ListadoColores(Listados& listados)
{
    listings::escribeListado(listados, Colores);
}

} // namespace kestrane
