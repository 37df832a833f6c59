#pragma once

#include "apoyo/tienda_de_prueba.h"
#include "instalacion/demo/parametros.h"

namespace kestrane::prueba {

/// Puts the rows of a demo shop into the two empty databases of `tienda`.
void llenaConDemostracion(TiendaDePrueba& tienda, const demo::Parametros& parametros);

} // namespace kestrane::prueba
