#pragma once

#include "pipeline/listados.h"
#include "platform/database/recordset.h"

/// Sums of the cash desk over the run's period and store, euros, where a report does not list their rows. A Null amount is error
/// 94, but for the sums that the database makes.
namespace kestrane::cash {

/// Opens `caja_inicial` of the period's first day and says whether it has a row; the first one counts.
[[nodiscard]] bool abreCajaInicial(Listados& listados, Recordset& cajas);
/// The `importe` of that row on a period of one day; 0 without a row and over longer periods.
[[nodiscard]] double cajaInicialDelDia(Listados& listados);
/// What was left unpaid of the period's sales (`cabecera_pago`).
[[nodiscard]] double totalNoCobrado(Listados& listados);
/// sum(importe) of the rows of `tabla` by their `fecha`; 0 when there are none.
[[nodiscard]] double sumaDeImportes(Listados& listados, const QString& tabla);

enum class Avance { Calla, Cuenta };
/// The same, row by row; the progress bar goes on with each when it is to.
[[nodiscard]] double importesDe(Listados& listados, const QString& tabla, Avance avance = Avance::Calla);

} // namespace kestrane::cash
