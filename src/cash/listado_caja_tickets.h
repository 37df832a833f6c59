#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// The period's tickets one by one, and what is in the till in cash and what went to card. Reads the period, the store,
/// `CajaCompleta` and `MultiTienda` of the run context.
///
/// Rows of `informes`, amounts in euros: the tickets by number, with `CajaCompleta` the annulled ones, the returns, and of a period
/// of one day the opening cash.
///
/// | column | holds |
/// |---|---|
/// | `numerico2` | number of the ticket or return, 0 of the opening cash |
/// | `texto2` | "Abono", "Albaran", " Eliminado", " / 105 Abono" (a return of sale 105), "Caja Inicial"; null of a plain ticket |
/// | `numerico1` | the amount, negative of a return, 0 of a ticket paid from deposit |
/// | `numerico22` | what of it entered the till: without what was left unpaid, but whole of an annulled ticket |
/// | `numerico17`, `texto30` | payment code and name; null of the opening cash |
/// | `numerico13` | left unpaid in the period, negative; null in the rows of returns and of the opening cash |
/// | `numerico10`, `numerico11` | cash and card, in all rows |
/// | `numerico3`, `numerico20` | expenses and withdrawals, negative, in all rows |
/// | `numerico12` | debts collected, in all rows; with `texto1` alone in the one row of a report that has no other |
/// | `texto1` | remarks and expenses, 254 characters, in all rows |
/// | `TEXTO35`, `TEXTO34`, `Fecha1`, `fecha2` | company, address, period |
/// | `texto33` | the store of a chain; null in the row of the opening cash |
///
/// Rows of `subinformes`: the tax in the sold lines of all stores by rate, ascending: `texto3` " al 21% ", `numerico5` gross,
/// `numerico4` tax. A remark, a reason of an expense or a store with an apostrophe ends the run.
void ListadoCajaTickets(Listados& listados);

} // namespace kestrane
