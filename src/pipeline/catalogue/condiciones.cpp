#include "pipeline/catalogue/condiciones.h"

#include "pipeline/sabores.h"

namespace kestrane::catalogue {

bool esComercio(const ContextoEjecucion& contexto)
{
    return kestrane::esComercio(contexto.TipoPrograma);
}

bool esDeTallaYColor(const ContextoEjecucion& contexto)
{
    return kestrane::esDeTallaYColor(contexto.TipoPrograma);
}

bool esDeAlimentacionYPerfume(const ContextoEjecucion& contexto)
{
    return kestrane::esDeAlimentacionYPerfume(contexto.TipoPrograma);
}

bool enTicket(const ContextoEjecucion& contexto)
{
    return contexto.FormatoTicket;
}

bool enTicketDeComercio(const ContextoEjecucion& contexto)
{
    return enTicket(contexto) && esComercio(contexto);
}

bool totalizado(const ContextoEjecucion& contexto)
{
    return contexto.filtros.totalizado;
}

bool totalizadoDeTodos(const ContextoEjecucion& contexto)
{
    return contexto.filtros.totalizado && contexto.filtros.empleado == -1;
}

bool reimprimeFactura(const ContextoEjecucion& contexto)
{
    return contexto.ReimprimirFactura;
}

} // namespace kestrane::catalogue
