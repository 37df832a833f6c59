#pragma once

#include "instalacion/demo/negocio.h"

namespace kestrane::demo {

/// The tables of products, variants, barcodes, tariffs, sizes, colours and brands.
void escribeProductos(const Negocio& negocio, Azar& azar);

} // namespace kestrane::demo
