#pragma once

#include "platform/report/export/paginas_informe.h"

#include <QImage>

namespace kestrane::report {

inline constexpr int PuntosPorPulgadaPng = 150;

/// A page on white paper.
[[nodiscard]] QImage dibujaPagina(const PaginasInforme& paginas, int indice, int puntosPorPulgada);

/// The file of a page (from 0) of so many: `fichero` itself when it is the only one, else "NAME_001.png".
[[nodiscard]] QString ficheroDePagina(const QString& fichero, int indice, int paginas);

/// Writes a picture of each page; they take their names when all are written, and when one cannot none does. False when `avance`
/// broke it off. ErrorDeSalida.
bool escribePng(const PaginasInforme& paginas, const QString& fichero, const AvanceExportacion& avance,
                int puntosPorPulgada = PuntosPorPulgadaPng);

} // namespace kestrane::report
