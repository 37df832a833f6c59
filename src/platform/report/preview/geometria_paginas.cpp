#include "platform/report/preview/geometria_paginas.h"

#include <algorithm>

namespace kestrane::report {

void GeometriaPaginas::vacia()
{
    m_tamanos.clear();
    m_arriba.clear();
    m_altoTotal = 0;
    m_anchoMaximo = 0;
}

void GeometriaPaginas::anade(QSizeF tamano)
{
    m_tamanos.push_back(tamano);
    m_arriba.push_back(m_altoTotal);
    m_altoTotal += tamano.height();
    m_anchoMaximo = std::max(m_anchoMaximo, tamano.width());
}

double GeometriaPaginas::escalaDe(Zoom zoom, QSizeF ventana, int pagina) const
{
    const auto acotada = [](double escala) { return zoomAcotado(escala / PorMilimetroAlCien * 100) / 100 * PorMilimetroAlCien; };
    if (zoom.modo == Zoom::Modo::Porcentaje || m_tamanos.empty())
        return acotada(zoom.porcentaje / 100 * PorMilimetroAlCien);
    const double porAncho = (ventana.width() - 2 * Margen) / m_anchoMaximo;
    if (zoom.modo == Zoom::Modo::Ancho)
        return acotada(porAncho);
    const QSizeF tamano = m_tamanos[std::clamp(pagina, 0, paginas() - 1)];
    return acotada(std::min(porAncho, (ventana.height() - 2 * Margen) / tamano.height()));
}

QSizeF GeometriaPaginas::contenido() const
{
    return {m_anchoMaximo * m_escala + 2 * Margen, m_altoTotal * m_escala + (paginas() + 1) * Margen};
}

QRectF GeometriaPaginas::caja(int pagina, double ancho) const
{
    const QSizeF tamano = m_tamanos[pagina] * m_escala;
    return {QPointF{(std::max(ancho, contenido().width()) - tamano.width()) / 2, arriba(pagina)}, tamano};
}

int GeometriaPaginas::paginaEn(double y) const
{
    int desde = 0;
    int hasta = paginas();
    while (hasta - desde > 1) {
        const int medio = (desde + hasta) / 2;
        (arriba(medio) - Margen / 2 <= y ? desde : hasta) = medio;
    }
    return paginas() == 0 ? -1 : desde;
}

double GeometriaPaginas::arriba(int pagina) const
{
    return m_arriba[pagina] * m_escala + (pagina + 1) * Margen;
}

} // namespace kestrane::report
