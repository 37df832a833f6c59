#pragma once

#include "run_context/contexto_ejecucion.h"

/// What single buttons do beyond the common road.
namespace kestrane::catalogue {

/// The search is for clients.
void buscaClientes(ContextoEjecucion& contexto);
/// The client that was found becomes the filter's; false when none was chosen.
[[nodiscard]] bool tomaClienteBuscado(ContextoEjecucion& contexto);
/// Clients by birthday, in a listing of birthdays.
void prepararCumpleanios(ContextoEjecucion& contexto);
void prepararClientes(ContextoEjecucion& contexto);
void prepararDineroEnDeposito(ContextoEjecucion& contexto);
void prepararProductos(ContextoEjecucion& contexto);
void prepararBajoMinimos(ContextoEjecucion& contexto);
void prepararReimpresion(ContextoEjecucion& contexto);

} // namespace kestrane::catalogue
