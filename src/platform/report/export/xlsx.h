#pragma once

#include "platform/report/export/exportacion.h"
#include "platform/report/export/tabla_informe.h"

#include <span>

namespace kestrane::report {

/// Writes the report as a workbook: numbers and dates as such in the layout's formats, the heading frozen, the rows of each group
/// one level deeper in the outline under its title, totals as figures. Sub-reports have a sheet each behind that of the rows, so
/// that those can be sorted and filtered. It takes its name when all of it is on the disk. False when `avance` broke it off.
/// ErrorDeSalida.
bool escribeXlsx(const TablaInforme& tabla, const QString& fichero, const AvanceExportacion& avance,
                 std::span<const TablaInforme> subinformes = {});

} // namespace kestrane::report
