#pragma once

#include "pipeline/listados.h"

/// Listings of sections, payment methods, suppliers and workshops.
namespace kestrane {

void ListadoSecciones(Listados& listados);
void ListadoFormasPago(Listados& listados);
void ListadoProveedores(Listados& listados);
void ListadoTalleres(Listados& listados);

} // namespace kestrane
