#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// Sales, regularised sales (with `CajaCompleta`), payments of debts and returns of a period by payment form. A split payment is
/// two rows of money, one for cash and one for card; the lines of a split sale carry none, the row of a split payment of a debt
/// does.
///
/// `informes`, in that order: `texto23` and `texto4` the payment ("1 - Deuda", "Venta no cobrada" for lines of unpaid sales),
/// `fecha3` the day, `numerico1`, `texto32` and `texto10` the number, `texto2` the client, `texto3` the line's text, `texto7` the
/// employee, `numerico2` net and `numerico3` tax (euros, negative for returns), `texto22` and `texto21` the block (both null for
/// spa packs and services of packs, `texto22` for payments of debts). In every row: `numerico13` services and packs, `numerico14`
/// products, `numerico9` their cost, `numerico8` units of services, `numerico10` 0, `numerico17` tickets and payments of debts,
/// `numerico16` expenses, `numerico18` debts collected, `numerico19` the balance without what has rows here, sales and debts
/// collected. `subinformes`: the summary box, `texto1` and `numerico1`, amounts above 0 alone.
///
/// Money paid into a deposit has no row. Error 6 past 32767 tickets or units.
void ListadoFormasPagoVentas(Listados& listados);

} // namespace kestrane
