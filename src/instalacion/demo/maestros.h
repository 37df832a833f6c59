#pragma once

#include "instalacion/demo/negocio.h"

namespace kestrane::demo {

/// The catalogues as tables: sections, services, packs, products with their variants, barcodes and tariffs, suppliers, brands,
/// workshops, payment methods. Stock is written as it stands, so this comes last.
void escribeMaestros(const Negocio& negocio, Azar azar);

/// The settings: the shop's data, terminals, printers, stores, rights, and what the programs of the suite leave there.
void escribeOpciones(const Negocio& negocio, Azar azar);

} // namespace kestrane::demo
