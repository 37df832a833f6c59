#pragma once

#include "run_context/contexto_ejecucion.h"

#include <QString>

namespace kestrane::lote {

/// Chooses a store as a press on its panel does; "Todas" and "" are all of them. Of stores that
/// differ in case alone the one that is spelt so is meant. PeticionImposible on the server when it is none of its stores.
void eligeTienda(ContextoEjecucion& contexto, const QString& tienda);

} // namespace kestrane::lote
