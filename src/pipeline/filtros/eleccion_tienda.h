#pragma once

#include "run_context/contexto_ejecucion.h"

namespace kestrane {

/// Whether dialogs offer a panel of stores: on the server alone.
[[nodiscard]] bool ofreceTiendas(const ContextoEjecucion& contexto);

/// A press on a store: it is chosen until another is pressed. "Todas", in whatever case, is all of them: "".
void pulsaTienda(ContextoEjecucion& contexto, const QString& texto);

} // namespace kestrane
