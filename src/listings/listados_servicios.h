#pragma once

#include "pipeline/listados.h"

/// Listings of services, packs and repairs.
namespace kestrane {

/// Ordered by the column that the dialog left in the filters.
void ListadoServicios(Listados& listados);
void ListadoArreglos(Listados& listados);
/// One row for each service of a pack; a pack without services has none.
void ListadoPackServicios(Listados& listados);
/// The same of the spa packs, with the day of the service.
void ListadoPackSpa(Listados& listados);

} // namespace kestrane
