#pragma once

#include "platform/report/export/exportacion.h"
#include "platform/report/export/tabla_informe.h"

#include <QIODevice>

#include <span>

namespace kestrane::report {

/// Writes the report as one page for browsers that needs nothing beside it: the title, one table with its headings (repeated on
/// each sheet when it is printed), a heading for each group, totals; sub-reports as tables below. False when `avance` broke it off.
/// ErrorDeSalida.
bool escribeHtml(const TablaInforme& tabla, QIODevice& destino, const AvanceExportacion& avance,
                 std::span<const TablaInforme> subinformes = {});

} // namespace kestrane::report
