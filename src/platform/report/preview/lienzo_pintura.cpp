#include "platform/report/preview/lienzo.h"

#include <QPaintEvent>
#include <QResizeEvent>
#include <QScrollBar>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor ColorAcierto{255, 236, 140};
constexpr QColor ColorActual{255, 178, 102};
constexpr int PasosSombra = 5;

void pintaTrechos(QPainter& pintor, const std::vector<QRectF>& cajas, double escala, QColor color)
{
    // Like a marker pen: what is printed there stays as dark as it was.
    pintor.setCompositionMode(QPainter::CompositionMode_Multiply);
    for (const QRectF& caja : cajas)
        pintor.fillRect(QRectF{caja.topLeft() * escala, caja.size() * escala}, color);
    pintor.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace

void Lienzo::paintEvent(QPaintEvent* evento)
{
    QPainter pintor{viewport()};
    pintor.fillRect(evento->rect(), palette().color(QPalette::Window).darker(112));
    if (m_geometria.paginas() == 0)
        return pintaVacio(pintor);
    const int primera = m_geometria.paginaEn(desplazamiento().y() + evento->rect().top());
    const int ultima = m_geometria.paginaEn(desplazamiento().y() + evento->rect().bottom());
    for (int pagina = primera; pagina <= ultima; ++pagina)
        pintaPagina(pintor, pagina);
}

void Lienzo::pintaPagina(QPainter& pintor, int pagina)
{
    const QRectF caja = cajaEnVentana(pagina);
    const PaginaVista& vista = m_paginas.vista(pagina);
    pintaPapel(pintor, caja);
    pintor.save();
    pintor.setClipRect(caja, Qt::IntersectClip);
    pintor.translate(caja.topLeft());
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    m_paginas.fuente().pinta(pintor, vista.compuesta, m_geometria.escala());
    pintaAciertos(pintor, pagina, vista.texto);
    pintaSeleccion(pintor, pagina, vista.texto);
    pintor.restore();
}

void Lienzo::pintaPapel(QPainter& pintor, const QRectF& caja) const
{
    for (int paso = PasosSombra; paso > 0; --paso)
        pintor.fillRect(caja.adjusted(-paso, 1 - paso, paso, paso + 1), QColor{0, 0, 0, 9});
    pintor.fillRect(caja, Qt::white);
}

void Lienzo::pintaAciertos(QPainter& pintor, int pagina, const TextoPagina& texto) const
{
    const auto aciertos = m_buscador.enPagina(pagina);
    const Acierto* actual = m_buscador.actual() < 0 ? nullptr : &m_buscador.acierto(m_buscador.actual());
    for (const Acierto& acierto : aciertos) {
        if (acierto.tramo < texto.tramos())
            pintaTrechos(pintor, texto.cajas(acierto.tramo, acierto.trecho.desde, acierto.trecho.hasta), m_geometria.escala(),
                         &acierto == actual ? ColorActual : ColorAcierto);
    }
}

void Lienzo::pintaSeleccion(QPainter& pintor, int pagina, const TextoPagina& texto) const
{
    const auto trecho = m_seleccion.enPagina(pagina, texto.final());
    if (!trecho)
        return;
    QColor color = palette().color(QPalette::Highlight);
    color.setAlpha(90);
    for (int tramo = trecho->first.tramo; tramo <= trecho->second.tramo && tramo < texto.tramos(); ++tramo) {
        const int desde = tramo == trecho->first.tramo ? trecho->first.caracter : 0;
        const int hasta = tramo == trecho->second.tramo ? trecho->second.caracter : int(texto.texto(tramo).size());
        pintaTrechos(pintor, texto.cajas(tramo, desde, hasta), m_geometria.escala(), color);
    }
}

void Lienzo::pintaVacio(QPainter& pintor) const
{
    pintor.setPen(palette().color(QPalette::WindowText));
    const bool completa = m_paginas.fuente().completa();
    pintor.drawText(viewport()->rect(), Qt::AlignCenter,
                    completa ? u"El informe no tiene páginas."_s : u"Preparando el informe…"_s);
}

void Lienzo::resizeEvent(QResizeEvent* evento)
{
    QAbstractScrollArea::resizeEvent(evento);
    ajustaAVentana();
    emit zoomCambiado();
}

void Lienzo::scrollContentsBy(int, int)
{
    viewport()->update();
    avisaPagina();
}

} // namespace kestrane::report
