#pragma once

#include "platform/report/export/exportacion.h"

#include <QPainter>

#include <optional>

namespace kestrane::report {

/// The pages of a report that is laid out, as they are put on paper.
struct PaginasInforme
{
    QString titulo;
    int paginas = 0;
    std::function<PaginaCompuesta(int)> pagina; ///< from 0
    /// Paints a page at the painter's origin, so many units a millimetre.
    std::function<void(QPainter&, const PaginaCompuesta&, double porMilimetro)> pinta;
};

/// Lays out to the end and gives its pages, which live as long as `documento`; nothing when `avance` broke it off.
[[nodiscard]] std::optional<PaginasInforme> paginasDe(Documento& documento, const AvanceExportacion& avance);

inline constexpr double MilimetrosPorPulgada = 25.4;

} // namespace kestrane::report
