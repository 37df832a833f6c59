#include "pipeline/catalogue/pasos.h"

namespace kestrane::catalogue {

using namespace Qt::StringLiterals;

void buscaClientes(ContextoEjecucion& contexto)
{
    contexto.ModoBusqueda = u"Cl"_s;
}

bool tomaClienteBuscado(ContextoEjecucion& contexto)
{
    if (contexto.ClienteBuscado.isEmpty() || contexto.ClienteBuscado == u"-1")
        return false;
    contexto.filtros.cliente = contexto.ClienteBuscado;
    return true;
}

void prepararCumpleanios(ContextoEjecucion& contexto)
{
    contexto.filtros.columnaOrden = u"nacimiento"_s;
    contexto.filtros.cumpleanios = true;
}

void prepararClientes(ContextoEjecucion& contexto)
{
    contexto.filtros.cumpleanios = false;
}

void prepararDineroEnDeposito(ContextoEjecucion& contexto)
{
    contexto.filtros.titulo = u"Clientes con Dinero en Deposito"_s;
}

void prepararProductos(ContextoEjecucion& contexto)
{
    contexto.SoloBajoMinimos = false;
}

void prepararBajoMinimos(ContextoEjecucion& contexto)
{
    contexto.SoloBajoMinimos = true;
}

void prepararReimpresion(ContextoEjecucion& contexto)
{
    contexto.ReimprimirFactura = false;
}

} // namespace kestrane::catalogue
