#pragma once

#include "run_context/contexto_ejecucion.h"

/// What a choice of the catalogue may depend on.
namespace kestrane::catalogue {

[[nodiscard]] bool esComercio(const ContextoEjecucion& contexto);
[[nodiscard]] bool esDeTallaYColor(const ContextoEjecucion& contexto);
[[nodiscard]] bool esDeAlimentacionYPerfume(const ContextoEjecucion& contexto);
[[nodiscard]] bool enTicket(const ContextoEjecucion& contexto);
[[nodiscard]] bool enTicketDeComercio(const ContextoEjecucion& contexto);
[[nodiscard]] bool totalizado(const ContextoEjecucion& contexto);
[[nodiscard]] bool totalizadoDeTodos(const ContextoEjecucion& contexto);
[[nodiscard]] bool reimprimeFactura(const ContextoEjecucion& contexto);

/// The central installation: it has a list of stores to choose from.
[[nodiscard]] bool enServidor(const ContextoEjecucion& contexto);

} // namespace kestrane::catalogue
