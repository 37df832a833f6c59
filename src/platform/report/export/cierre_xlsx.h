#pragma once

#include "platform/report/export/exportacion.h"

#include <vector>

struct lxw_workbook;
struct lxw_worksheet;

namespace kestrane::report {

/// A workbook whose rows are all written.
struct LibroEscrito
{
    lxw_workbook*& libro; ///< null when it is closed
    const std::vector<lxw_worksheet*>& hojas;
    const QString& fichero;
    const QString& carpeta; ///< for what is written on the way
};

/// Packs it into its file. False when `avance` broke it off. ErrorDeSalida, also when the disk did not take some of it on the way.
bool cierraLibro(const LibroEscrito& escrito, const AvanceExportacion& avance);

} // namespace kestrane::report
