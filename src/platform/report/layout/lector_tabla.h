#pragma once

#include "platform/report/layout/ambito_seccion.h"

namespace kestrane::report {

/// How high its headings, rows and totals are at least.
[[nodiscard]] double altoDeTabla(const ElementoXml& tabla);

/// Writes a table as bands: its headings go to the end of the page's header (in a sub-report, of the report's), its row to the end
/// of the detail, its totals in front of the feet of the groups and of the report. `informe` holds the table; `ambito` is outside
/// its groups. Without <datos> its columns are the report's as data. Error when it is too wide or its rows too high.
void anadeTabla(const ElementoXml& tabla, const ElementoXml& informe, const AmbitoSeccion& ambito);

/// The columns of a <tabla> or of <datos> as data.
[[nodiscard]] std::vector<ColumnaDatos> leeColumnasDeDatos(const ElementoXml& tabla, const AmbitoSeccion& ambito);

} // namespace kestrane::report
