#pragma once

#include "run_context/contexto_ejecucion.h"

namespace kestrane {

/// A press on a store: it is chosen until another is pressed. "Todas", in whatever case, is all of them: "".
void pulsaTienda(ContextoEjecucion& contexto, const QString& texto);

} // namespace kestrane
