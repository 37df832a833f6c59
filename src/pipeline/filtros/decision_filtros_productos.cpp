#include "pipeline/filtros/decision_filtros_productos.h"

#include "pipeline/filtros/paneles.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr OpcionDeClase Clases[] = {
    {u"optTodos", u"Todos los Productos", u"", u"Todos"},
    {u"optAmbos", u"Ambos", u"A", u"Ambos"},
    {u"optCInt", u"Producto de Consumo Interno", u"CI", u"Productos de Consumo Interno"},
    {u"optVenta", u"Producto de Venta", u"V", u"Productos de Venta"},
};

/// The filter that a panel of the block sets.
qint32& filtroDe(BloqueProductos bloque, Filtros& filtros)
{
    switch (bloque) {
    case BloqueProductos::Proveedor:
        return filtros.proveedor;
    case BloqueProductos::Seccion:
        return filtros.seccion;
    case BloqueProductos::Tipo:
    case BloqueProductos::BajoMinimo:
        break;
    }
    return filtros.proveedorBajoMinimos;
}

void quita(BloqueProductos bloque, Filtros& filtros)
{
    if (bloque == BloqueProductos::Tipo)
        filtros.claseProducto = u""_s;
    else
        filtroDe(bloque, filtros) = CodigoDeTodos;
}

} // namespace

QString leyendaDe(BloqueProductos bloque)
{
    switch (bloque) {
    case BloqueProductos::Proveedor:
        return u"LISTADO DE PRODUCTOS X PROVEEDOR"_s;
    case BloqueProductos::Seccion:
        return u"LISTADO DE PRODUCTOS X SECCIONES"_s;
    case BloqueProductos::Tipo:
        return u"LISTADO X TIPO DE PRODUCTOS"_s;
    case BloqueProductos::BajoMinimo:
        break;
    }
    return u"LISTADO DE PRODUCTOS BAJO MINIMO"_s;
}

std::span<const OpcionDeClase> opcionesDeClase()
{
    return Clases;
}

void DecisionFiltrosProductos::carga()
{
    for (const BloqueProductos bloque :
         {BloqueProductos::Seccion, BloqueProductos::Proveedor, BloqueProductos::BajoMinimo, BloqueProductos::Tipo})
        quita(bloque, m_contexto.filtros);
}

void DecisionFiltrosProductos::elige(BloqueProductos bloque, const ElementoPanel& elemento)
{
    // Joined without a blank, as the listing has always been titled.
    const QString enlace = bloque == BloqueProductos::BajoMinimo ? u"X Proveedor = "_s : u" = "_s;
    Filtros& filtros = m_contexto.filtros;
    filtros.titulo = leyendaDe(bloque) + enlace + elemento.Nombre;
    filtros.bajoMinimos = bloque == BloqueProductos::BajoMinimo;
    filtroDe(bloque, filtros) = codigoDe(elemento);
}

void DecisionFiltrosProductos::eligeClase(const OpcionDeClase& opcion)
{
    Filtros& filtros = m_contexto.filtros;
    filtros.titulo = leyendaDe(BloqueProductos::Tipo) + u" = "_s + opcion.titulo.toString();
    filtros.bajoMinimos = false;
    filtros.claseProducto = opcion.clase.toString();
}

void DecisionFiltrosProductos::acepta(BloqueProductos bloque)
{
    m_contexto.filtros.bajoMinimos = bloque == BloqueProductos::BajoMinimo;
    for (const BloqueProductos otro :
         {BloqueProductos::Proveedor, BloqueProductos::Seccion, BloqueProductos::Tipo, BloqueProductos::BajoMinimo}) {
        if (otro != bloque)
            quita(otro, m_contexto.filtros);
    }
}

} // namespace kestrane
