#pragma once

#include "platform/report/export/paginas_informe.h"

#include <QIODevice>

namespace kestrane::report {

/// Writes the pages as PDF, each as large as its report says; texts stay texts. False when `avance` broke it off. ErrorDeSalida.
bool escribePdf(const PaginasInforme& paginas, QIODevice& destino, const AvanceExportacion& avance);

} // namespace kestrane::report
