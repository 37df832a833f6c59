#pragma once

#include "pipeline/listados.h"

/// Listings of sizes, brands and colours.
namespace kestrane {

void ListadoTallas(Listados& listados);
void ListadoMarcas(Listados& listados);
void ListadoColores(Listados& listados);

} // namespace kestrane
