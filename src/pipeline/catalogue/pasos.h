#pragma once

#include "run_context/contexto_ejecucion.h"

/// What single buttons do beyond the common road: each leaves its values in the run context.
namespace kestrane::catalogue {

/// The search is for clients: `ModoBusqueda` becomes "Cl".
void buscaClientes(ContextoEjecucion& contexto);
/// The code that the search left in `ClienteBuscado` becomes the filter's client, as it stands. False when it is empty or "-1": no
/// client was ever chosen, and the filter stays.
[[nodiscard]] bool tomaClienteBuscado(ContextoEjecucion& contexto);
/// The listing of clients is one of birthdays, ordered by them.
void prepararCumpleanios(ContextoEjecucion& contexto);
/// The listing of clients is the general one; its order comes from the dialog.
void prepararClientes(ContextoEjecucion& contexto);
/// The title that the listing of deposits prints.
void prepararDineroEnDeposito(ContextoEjecucion& contexto);
/// The listing of products is of all.
void prepararProductos(ContextoEjecucion& contexto);
/// The listing of products is of those under their minimum.
void prepararBajoMinimos(ContextoEjecucion& contexto);
/// No invoice is chosen yet: `ReimprimirFactura` becomes false.
void prepararReimpresion(ContextoEjecucion& contexto);

} // namespace kestrane::catalogue
