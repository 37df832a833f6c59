#pragma once

#include "platform/report/preview/buscador.h"
#include "platform/report/preview/geometria_paginas.h"
#include "platform/report/preview/seleccion.h"

#include <QAbstractScrollArea>

class QGestureEvent;
class QPinchGesture;

namespace kestrane::report {

/// The pages of a report, one below the other, of which only what is seen is painted. Wheel, touch, keys and mouse move, enlarge
/// and select.
class Lienzo final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// All outlive it.
    Lienzo(PaginasVista& paginas, const Buscador& buscador, QWidget* padre = nullptr);

    /// Pages have come at the end; what is seen stays where it is.
    void anadePaginas();
    /// The report was laid out anew: all pages anew, as near to the old place as there are pages.
    void recomienza();

    [[nodiscard]] Zoom zoom() const { return m_zoom; }
    void ponZoom(Zoom zoom);
    /// The percentage at which pages stand now, fitted or not.
    [[nodiscard]] double porcentaje() const;
    void acerca();
    void aleja();

    /// The page of which most is seen at the top, from 0; -1 without pages.
    [[nodiscard]] int paginaActual() const;
    void vaAPagina(int pagina) { vaA(pagina, 0); }
    /// Brings a height of a page, in millimetres, to the top.
    void vaA(int pagina, double y);
    /// Scrolls no further than needed to have a hit in sight.
    void muestraAcierto(const Acierto& acierto);

    [[nodiscard]] bool haySeleccion() const { return !m_seleccion.vacia(); }
    void quitaSeleccion();
    /// All text of the current page.
    void seleccionaPagina();
    void copia();
    /// The same in slices: tells `avance` after each page how far it is; false when that broke it off, and then nothing is copied.
    bool copia(const AvanceExportacion& avance);
    /// On how many pages there is text that is chosen.
    [[nodiscard]] int paginasElegidas() const;

    /// The page's place in the viewport.
    [[nodiscard]] QRectF cajaEnVentana(int pagina) const;
    /// The place of a stretch of text in the viewport.
    [[nodiscard]] QRectF cajaDeTexto(int pagina, int tramo, Trecho trecho);

    void avanzaPantalla();
    void retrocedePantalla();
    /// A screen on or back, or to the first or last page, when that is what a key means; false when it means nothing of it.
    bool teclaDePaginas(int tecla, Qt::KeyboardModifiers con);

signals:
    void paginaCambiada(int pagina);
    void zoomCambiado();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

private:
    void ponEscala(double escala, QPointF fijo);
    void ajustaBarras();
    void ajustaAVentana();
    void avisaPagina();
    [[nodiscard]] QPointF desplazamiento() const;
    [[nodiscard]] double anchoContenido() const;
    [[nodiscard]] QPointF enMilimetros(int pagina, QPointF punto) const;
    [[nodiscard]] LugarInforme lugarEn(QPointF punto);
    [[nodiscard]] bool sobreTexto(QPointF punto);

    void pintaPagina(QPainter& pintor, int pagina);
    void pintaPapel(QPainter& pintor, const QRectF& caja) const;
    void pintaAciertos(QPainter& pintor, int pagina, const TextoPagina& texto) const;
    void pintaSeleccion(QPainter& pintor, int pagina, const TextoPagina& texto) const;
    void pintaVacio(QPainter& pintor) const;

    bool gesto(QGestureEvent& evento);
    void pellizca(const QPinchGesture& gesto);
    bool moverConTecla(int tecla);

    PaginasVista& m_paginas;
    const Buscador& m_buscador;
    GeometriaPaginas m_geometria;
    Zoom m_zoom;
    Seleccion m_seleccion;
    bool m_seleccionando = false;
    std::optional<QPoint> m_arrastre; ///< the middle button drags the pages
    double m_escalaAlPellizcar = 0;
    int m_paginaAvisada = -1;
};

} // namespace kestrane::report
