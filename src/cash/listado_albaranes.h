#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// The lines of the delivery notes of a period that are not invoiced yet, of every store.
///
/// `informes`, by the number of the temporary sale: `fecha3` the note's day, `numerico1` and `texto10` its number, `texto2` the
/// client, `texto3` units and product, `texto7` the employee, `texto23` and `texto4` the payment, `numerico2` net and `numerico3`
/// tax (euros), `texto22` and `texto21` the block, null for bonos and services of packs. In every row: `numerico13` services and
/// packs, `numerico14` products, `numerico9` their cost, `numerico8` units of services, `numerico17` notes. `subinformes`: the
/// remarks of all desks.
///
/// Error 6 past 32767 notes or units.
void ListadoAlbaranes(Listados& listados);

} // namespace kestrane
