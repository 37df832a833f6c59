#pragma once

#include "platform/report/preview/zoom.h"

#include <QRectF>
#include <QSizeF>

#include <vector>

namespace kestrane::report {

/// Where the pages of a report stand, one below the other and centred, in points of the screen from the corner of all of them.
class GeometriaPaginas
{
public:
    static constexpr double Margen = 16; ///< points around and between pages
    static constexpr double PorMilimetroAlCien = 96 / 25.4;

    void vacia();
    /// A page more, at the end; millimetres.
    void anade(QSizeF tamano);
    /// Points that a millimetre takes.
    void ponEscala(double porMilimetro) { m_escala = porMilimetro; }

    [[nodiscard]] int paginas() const { return int(m_tamanos.size()); }
    [[nodiscard]] double escala() const { return m_escala; }
    /// The scale that `zoom` asks for in a window of that size, as seen from `pagina`.
    [[nodiscard]] double escalaDe(Zoom zoom, QSizeF ventana, int pagina) const;
    /// All pages with their margins.
    [[nodiscard]] QSizeF contenido() const;
    /// A page in a content that is `ancho` wide.
    [[nodiscard]] QRectF caja(int pagina, double ancho) const;
    /// The page at a height, or the nearest one; -1 without pages.
    [[nodiscard]] int paginaEn(double y) const;

private:
    [[nodiscard]] double arriba(int pagina) const;

    std::vector<QSizeF> m_tamanos;
    std::vector<double> m_arriba; ///< millimetres of all pages before this one
    double m_altoTotal = 0;
    double m_anchoMaximo = 0;
    double m_escala = PorMilimetroAlCien;
};

} // namespace kestrane::report
