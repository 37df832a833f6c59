#pragma once

#include "run_context/contexto_ejecucion.h"

/// What a choice of the catalogue may depend on: each reads the run context and changes nothing.
namespace kestrane::catalogue {

/// The groups of flavours of pipeline/sabores.h.
[[nodiscard]] bool esComercio(const ContextoEjecucion& contexto);
[[nodiscard]] bool esDeTallaYColor(const ContextoEjecucion& contexto);
[[nodiscard]] bool esDeAlimentacionYPerfume(const ContextoEjecucion& contexto);
/// The dialog was answered with the format of the ticket printer.
[[nodiscard]] bool enTicket(const ContextoEjecucion& contexto);
/// The same in a retail flavour.
[[nodiscard]] bool enTicketDeComercio(const ContextoEjecucion& contexto);
/// The employee history was asked for in totals, of one employee or of all.
[[nodiscard]] bool totalizado(const ContextoEjecucion& contexto);
/// In totals of all employees.
[[nodiscard]] bool totalizadoDeTodos(const ContextoEjecucion& contexto);
/// The reprint was asked for as an invoice; as a ticket its dialog has printed it already.
[[nodiscard]] bool reimprimeFactura(const ContextoEjecucion& contexto);

} // namespace kestrane::catalogue
