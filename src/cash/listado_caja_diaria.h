#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// The cash sheet of a day or a period, in detail and summarised.
///
/// Reads the sales, annulled sales (with `CajaCompleta`), returns and debts of the shop and its tables of opening cash, expenses,
/// withdrawals, remarks and (in retail shops) vouchers, for the run's period and store. Opening cash and withdrawals belong to a
/// single day.
///
/// `informes`, in stored order opening cash, sales, annulled sales (each with its unpaid row behind its lines), payments of debts,
/// returns, expenses, withdrawals: `texto22` and `texto21` the block, `fecha3` the day, `numerico1` and `texto10` the number,
/// `texto2` and `texto30` client and tax number, `texto3` the line's text, `texto7` the employee, `texto23` and `texto4` the
/// payment, `numerico2` net and `numerico3` tax (euros; what goes out is negative). `texto33` is the store and the company's tax
/// number. In every row: `numerico13` services and packs, `numerico14` products and `numerico9` their cost, `numerico8` units of
/// services, `numerico10` opening cash, `numerico17` tickets, `numerico16` expenses, `numerico18` debts collected. `subinformes`:
/// remarks (`Fecha1`, `fecha2`, `texto1`, `texto2`), then vouchers (`fecha3`, `texto10` sale, `texto11` client, `texto12`,
/// `texto14` employee's code, `numerico1` amount, `texto15` the sale that spent it).
///
/// Error 6 past 32767 tickets or units; the database's error when a client's name has an apostrophe in a shop with vouchers.
void ListadoCajaDiaria(Listados& listados);

} // namespace kestrane
