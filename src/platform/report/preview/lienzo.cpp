#include "platform/report/preview/lienzo.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QScroller>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr int PasoDeLinea = 48;

} // namespace

Lienzo::Lienzo(PaginasVista& paginas, const Buscador& buscador, QWidget* padre)
    : QAbstractScrollArea{padre}
    , m_paginas{paginas}
    , m_buscador{buscador}
{
    setObjectName(u"lienzo"_s);
    setAccessibleName(u"Páginas del informe"_s);
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    // A bar that comes and goes would change the fitted width, which would make it come and go.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setSingleStep(PasoDeLinea);
    horizontalScrollBar()->setSingleStep(PasoDeLinea);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    viewport()->grabGesture(Qt::PinchGesture);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    anadePaginas();
}

void Lienzo::anadePaginas()
{
    const int antes = m_geometria.paginas();
    for (int pagina = antes; pagina < m_paginas.fuente().paginas(); ++pagina)
        m_geometria.anade(m_paginas.tamano(pagina));
    if (m_paginaAvisada < 0)
        ajustaAVentana();
    ajustaBarras();
    // Pages below what is seen would cost a painting for each slice of laying out.
    if (antes == 0 || (antes < m_geometria.paginas() && cajaEnVentana(antes).top() < viewport()->height()))
        viewport()->update();
    avisaPagina();
}

void Lienzo::recomienza()
{
    const int pagina = paginaActual();
    m_geometria.vacia();
    m_seleccion.quita();
    m_paginas.olvida();
    anadePaginas();
    if (m_geometria.paginas() > 0)
        vaAPagina(std::clamp(pagina, 0, m_geometria.paginas() - 1));
}

void Lienzo::ponZoom(Zoom zoom)
{
    zoom.porcentaje = zoomAcotado(zoom.porcentaje);
    m_zoom = zoom;
    const int pagina = paginaActual();
    ajustaAVentana();
    if (zoom.modo == Zoom::Modo::Pagina)
        vaAPagina(pagina);
    emit zoomCambiado();
}

double Lienzo::porcentaje() const
{
    return m_geometria.escala() / GeometriaPaginas::PorMilimetroAlCien * 100;
}

void Lienzo::acerca()
{
    ponZoom({Zoom::Modo::Porcentaje, zoomSiguiente(porcentaje())});
}

void Lienzo::aleja()
{
    ponZoom({Zoom::Modo::Porcentaje, zoomAnterior(porcentaje())});
}

void Lienzo::ajustaAVentana()
{
    ponEscala(m_geometria.escalaDe(m_zoom, viewport()->size(), paginaActual()), {viewport()->width() / 2., 0});
}

void Lienzo::ponEscala(double escala, QPointF fijo)
{
    // What stands under the fixed point stays there.
    const int pagina = m_geometria.paginaEn(desplazamiento().y() + fijo.y());
    const QPointF milimetros = pagina < 0 ? QPointF{} : enMilimetros(pagina, fijo);
    m_geometria.ponEscala(escala);
    ajustaBarras();
    if (pagina >= 0) {
        const QRectF caja = m_geometria.caja(pagina, anchoContenido());
        horizontalScrollBar()->setValue(qRound(caja.x() + milimetros.x() * escala - fijo.x()));
        verticalScrollBar()->setValue(qRound(caja.y() + milimetros.y() * escala - fijo.y()));
    }
    viewport()->update();
    avisaPagina();
}

void Lienzo::ajustaBarras()
{
    const auto tope = [](double contenido, int ventana) {
        // A fitted page is as wide as the window but for rounding.
        return int(std::clamp(std::ceil(contenido - 0.01) - ventana, 0., std::numeric_limits<int>::max() / 2.));
    };
    const QSizeF contenido = m_geometria.contenido();
    verticalScrollBar()->setRange(0, tope(contenido.height(), viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setRange(0, tope(contenido.width(), viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
}

int Lienzo::paginaActual() const
{
    return m_geometria.paginaEn(desplazamiento().y() + viewport()->height() / 3.);
}

void Lienzo::vaA(int pagina, double y)
{
    if (pagina < 0 || pagina >= m_geometria.paginas())
        return;
    const double arriba = m_geometria.caja(pagina, anchoContenido()).top();
    verticalScrollBar()->setValue(qRound(arriba + y * m_geometria.escala() - GeometriaPaginas::Margen / 2));
}

void Lienzo::muestraAcierto(const Acierto& acierto)
{
    const QRectF caja = cajaDeTexto(acierto.pagina, acierto.tramo, acierto.trecho);
    if (caja.isNull() || viewport()->rect().contains(caja.toAlignedRect()))
        return viewport()->update();
    verticalScrollBar()->setValue(qRound(desplazamiento().y() + caja.center().y() - viewport()->height() / 3.));
    if (caja.left() < 0 || caja.right() > viewport()->width())
        horizontalScrollBar()->setValue(qRound(desplazamiento().x() + caja.center().x() - viewport()->width() / 2.));
    viewport()->update();
}

void Lienzo::quitaSeleccion()
{
    m_seleccion.quita();
    viewport()->update();
}

void Lienzo::seleccionaPagina()
{
    const int pagina = paginaActual();
    if (pagina < 0)
        return;
    m_seleccion.empieza({pagina, {}});
    m_seleccion.extiende({pagina, m_paginas.vista(pagina).texto.final()});
    viewport()->update();
}

void Lienzo::copia()
{
    static_cast<void>(copia({}));
}

bool Lienzo::copia(const AvanceExportacion& avance)
{
    if (!haySeleccion())
        return true;
    const std::optional<QString> texto = m_seleccion.texto(m_paginas, avance);
    if (texto)
        QApplication::clipboard()->setText(*texto);
    return texto.has_value();
}

int Lienzo::paginasElegidas() const
{
    return haySeleccion() ? m_seleccion.hasta().pagina - m_seleccion.desde().pagina + 1 : 0;
}

void Lienzo::avisaPagina()
{
    const int pagina = paginaActual();
    if (pagina == m_paginaAvisada)
        return;
    m_paginaAvisada = pagina;
    emit paginaCambiada(pagina);
}

QPointF Lienzo::desplazamiento() const
{
    return {double(horizontalScrollBar()->value()), double(verticalScrollBar()->value())};
}

double Lienzo::anchoContenido() const
{
    return std::max<double>(viewport()->width(), m_geometria.contenido().width());
}

QPointF Lienzo::enMilimetros(int pagina, QPointF punto) const
{
    return (punto + desplazamiento() - m_geometria.caja(pagina, anchoContenido()).topLeft()) / m_geometria.escala();
}

QRectF Lienzo::cajaEnVentana(int pagina) const
{
    return m_geometria.caja(pagina, anchoContenido()).translated(-desplazamiento());
}

QRectF Lienzo::cajaDeTexto(int pagina, int tramo, Trecho trecho)
{
    const TextoPagina& texto = m_paginas.vista(pagina).texto;
    if (tramo >= texto.tramos())
        return {};
    const QRectF caja = texto.caja(tramo, trecho.desde, trecho.hasta);
    const QPointF esquina = cajaEnVentana(pagina).topLeft();
    return {esquina + caja.topLeft() * m_geometria.escala(), caja.size() * m_geometria.escala()};
}

LugarInforme Lienzo::lugarEn(QPointF punto)
{
    const int pagina = m_geometria.paginaEn(desplazamiento().y() + punto.y());
    return pagina < 0 ? LugarInforme{} : LugarInforme{pagina, m_paginas.vista(pagina).texto.lugarEn(enMilimetros(pagina, punto))};
}

bool Lienzo::sobreTexto(QPointF punto)
{
    const int pagina = m_geometria.paginaEn(desplazamiento().y() + punto.y());
    return pagina >= 0 && m_paginas.vista(pagina).texto.hayTextoEn(enMilimetros(pagina, punto));
}

} // namespace kestrane::report
