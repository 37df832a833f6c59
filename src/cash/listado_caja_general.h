#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// What each employee sold in the period by family of lines, and the balance of the till. Reads the period, the store,
/// `CajaCompleta`, `MultiTienda` and `TipoPrograma` of the run context.
///
/// Rows of `informes`, one for each seller (and each annulled shared service), gross euros: sales less returns, with `CajaCompleta`
/// plus annulled sales. Their order is that in which sellers turn up: products, services, packs, spa packs.
///
/// | column | holds |
/// |---|---|
/// | `texto21` | key: the employee's code, "-1" for shared lines, "1,3,7" for services that 3 and 7 gave together; "3,7" for
/// annulled ones | | `TEXTO20` | the seller's name; "Ana P (Compartido con) Luis G" of annulled services | | `numerico3` | products
/// | | `numerico1`, `numerico2`, `numerico4` | services, packs, spa packs, named in `texto1`, `texto2`, `texto3` | | `numerico19` |
/// the balance, in all rows | | `texto33` | "Tienda = " and the store, in all rows |
///
/// Rows of `subinformes`: the lines of the balance that are above 0, `texto1` the name, `numerico1` the amount. Sales paid from
/// deposit and money paid into deposits are in no seller's row. A store with an apostrophe ends the run. The progress bar does not
/// move.
void ListadoCajaGeneral(Listados& listados);

} // namespace kestrane
