#pragma once

#include "platform/report/pagina_compuesta.h"

#include <QPainter>

#include <memory>

namespace kestrane::report {

/// Paints pages on screen, printer, PDF and pictures alike. Keeps the glyphs that it has seen: one painter for one job.
class PintorPaginas
{
public:
    PintorPaginas();
    ~PintorPaginas();
    PintorPaginas(const PintorPaginas&) = delete;
    PintorPaginas& operator=(const PintorPaginas&) = delete;

    /// `porMilimetro` is how many units of the painter a millimetre takes; the page's corner lies at the painter's origin. The
    /// paper is not painted.
    void pinta(QPainter& pintor, const PaginaCompuesta& pagina, double porMilimetro);

private:
    class Glifos;
    std::unique_ptr<Glifos> m_glifos;
};

} // namespace kestrane::report
