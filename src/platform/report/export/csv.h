#pragma once

#include "platform/report/export/exportacion.h"
#include "platform/report/export/tabla_informe.h"

#include <QIODevice>

namespace kestrane::report {

/// Writes the rows under the layout's headings: UTF-8 with its mark, ";" between fields, lines that end in CR LF. Numbers are bare
/// (regional decimal mark, no thousands), dates in the short form; Null is nothing at all.
///
/// A text that a spreadsheet would take for a formula has an apostrophe in front: names and notes come from anybody. A sign with
/// nothing but a number or a telephone behind it stays, as it can do no harm. False when `avance` broke it off. ErrorDeSalida.
bool escribeCsv(const TablaInforme& tabla, QIODevice& destino, const AvanceExportacion& avance);

} // namespace kestrane::report
