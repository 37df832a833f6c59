#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// The lines of services, bonos and their consumptions (kinds S, B, CB) that a period sold, regularised (with `CajaCompleta`) and
/// gave back. Debts have no rows here.
///
/// `informes`, in that order: `texto22` and `texto21` the block, `fecha3` the day, `numerico1` and `texto10` the number, `texto2`
/// the client, `texto3` the line's text, `texto24` its code, `numerico11` its unit price, `numerico5` its units, `texto7` the
/// employee (empty on a shared line), `texto23` and `texto4` the payment, `numerico2` net and `numerico3` tax (euros, negative for
/// returns). In every row: `numerico13` services, `numerico9` 0, `numerico8` units, `numerico10` opening cash, `numerico17`
/// tickets, those without a service too, `numerico16` expenses, `numerico18` debts collected. `subinformes`: the desk's remarks.
///
/// Error 6 past 32767 tickets or units.
void ListadoPorServicios(Listados& listados);

} // namespace kestrane
