#include "pipeline/filtros/ordenes.h"

namespace kestrane {

namespace {

constexpr Orden Clientes[] = {
    {u"Command1", u"Nombre", u"Nombre"},         {u"Command2", u"Fecha de Alta", u"Ingreso"},
    {u"Command4", u"Cumpleaños", u"nacimiento"}, {u"Command5", u"Ultima Visita", u"UltimaVisita"},
    {u"Command6", u"Apellidos", u"Apellidos"},   {u"Command7", u"Solo Clientes con E-Mail", u"Nombre", true},
};

constexpr Orden Servicios[] = {
    {u"Command1", u"Nombre", u"Nombre"},
    {u"Command2", u"Seccion", u"Seccion"},
    {u"Command4", u"Codigo", u"Codigo"},
};

constexpr Orden Productos[] = {
    {u"Command1", u"Nombre", u"Nombre"}, {u"Command2", u"Secciones", u"Seccion"}, {u"Command4", u"Proveedores", u"Proveedor"},
    {u"Command5", u"Codigo", u"Codigo"}, {u"Command6", u"Stock", u"Stock"},
};

} // namespace

std::span<const Orden> ordenesDeClientes()
{
    return Clientes;
}

std::span<const Orden> ordenesDeServicios()
{
    return Servicios;
}

std::span<const Orden> ordenesDeProductos()
{
    return Productos;
}

void eligeOrden(ContextoEjecucion& contexto, const Orden& orden)
{
    contexto.filtros.columnaOrden = orden.columna.toString();
    if (orden.soloConEmail)
        contexto.filtros.soloConEmail = true;
    contexto.FiltroAceptado = true;
}

} // namespace kestrane
