#include "platform/report/preview/lienzo.h"

#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPinchGesture>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace kestrane::report {

namespace {

constexpr double GradosPorMuesca = 120;
constexpr double FactorPorMuesca = 1.15;
constexpr int Solape = 40; ///< points of the old screen that stay in sight

} // namespace

void Lienzo::wheelEvent(QWheelEvent* evento)
{
    if (!evento->modifiers().testFlag(Qt::ControlModifier))
        return QAbstractScrollArea::wheelEvent(evento);
    const double factor = std::pow(FactorPorMuesca, evento->angleDelta().y() / GradosPorMuesca);
    m_zoom = {Zoom::Modo::Porcentaje, zoomAcotado(porcentaje() * factor)};
    ponEscala(m_geometria.escalaDe(m_zoom, viewport()->size(), paginaActual()), evento->position());
    emit zoomCambiado();
    evento->accept();
}

bool Lienzo::viewportEvent(QEvent* evento)
{
    switch (evento->type()) {
    case QEvent::Gesture:
        return gesto(static_cast<QGestureEvent&>(*evento));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        // Gestures read them. Left alone they would come back as a mouse that selects what a finger only scrolls.
        evento->accept();
        return true;
    default:
        return QAbstractScrollArea::viewportEvent(evento);
    }
}

bool Lienzo::gesto(QGestureEvent& evento)
{
    const auto* pellizco = static_cast<QPinchGesture*>(evento.gesture(Qt::PinchGesture));
    if (!pellizco)
        return false;
    pellizca(*pellizco);
    return true;
}

void Lienzo::pellizca(const QPinchGesture& gesto)
{
    if (gesto.state() == Qt::GestureStarted)
        m_escalaAlPellizcar = porcentaje();
    m_zoom = {Zoom::Modo::Porcentaje, zoomAcotado(m_escalaAlPellizcar * gesto.totalScaleFactor())};
    ponEscala(m_geometria.escalaDe(m_zoom, viewport()->size(), paginaActual()), viewport()->mapFromGlobal(gesto.centerPoint()));
    emit zoomCambiado();
}

void Lienzo::keyPressEvent(QKeyEvent* evento)
{
    const bool conControl = evento->modifiers().testFlag(Qt::ControlModifier);
    if (!teclaDePaginas(evento->key(), evento->modifiers()) && (conControl || !moverConTecla(evento->key())))
        evento->ignore();
}

bool Lienzo::teclaDePaginas(int tecla, Qt::KeyboardModifiers con)
{
    if (tecla == Qt::Key_Home || tecla == Qt::Key_End) {
        vaAPagina(tecla == Qt::Key_Home ? 0 : m_geometria.paginas() - 1);
        return true;
    }
    if (con.testFlag(Qt::ControlModifier) || (tecla != Qt::Key_PageDown && tecla != Qt::Key_PageUp))
        return false;
    if (tecla == Qt::Key_PageDown)
        avanzaPantalla();
    else
        retrocedePantalla();
    return true;
}

bool Lienzo::moverConTecla(int tecla)
{
    QScrollBar& barra = tecla == Qt::Key_Left || tecla == Qt::Key_Right ? *horizontalScrollBar() : *verticalScrollBar();
    switch (tecla) {
    case Qt::Key_Space:
        avanzaPantalla();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Right:
        barra.triggerAction(QScrollBar::SliderSingleStepAdd);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Left:
        barra.triggerAction(QScrollBar::SliderSingleStepSub);
        return true;
    default:
        return false;
    }
}

void Lienzo::avanzaPantalla()
{
    const int pagina = paginaActual();
    if (pagina < 0)
        return;
    // What is left of a page comes first, then the next page from its top.
    if (cajaEnVentana(pagina).bottom() > viewport()->height() + 1)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + viewport()->height() - Solape);
    else
        vaAPagina(std::min(pagina + 1, m_geometria.paginas() - 1));
}

void Lienzo::retrocedePantalla()
{
    const int pagina = paginaActual();
    if (pagina < 0)
        return;
    if (cajaEnVentana(pagina).top() < -1)
        verticalScrollBar()->setValue(verticalScrollBar()->value() - viewport()->height() + Solape);
    else
        vaAPagina(std::max(pagina - 1, 0));
}

void Lienzo::mousePressEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::MiddleButton) {
        m_arrastre = evento->position().toPoint();
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    if (evento->button() != Qt::LeftButton)
        return;
    const LugarInforme lugar = lugarEn(evento->position());
    if (evento->modifiers().testFlag(Qt::ShiftModifier))
        m_seleccion.extiende(lugar);
    else
        m_seleccion.empieza(lugar);
    m_seleccionando = true;
    viewport()->update();
}

void Lienzo::mouseMoveEvent(QMouseEvent* evento)
{
    if (m_arrastre) {
        const QPoint paso = evento->position().toPoint() - *m_arrastre;
        m_arrastre = evento->position().toPoint();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - paso.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - paso.y());
    } else if (m_seleccionando) {
        m_seleccion.extiende(lugarEn(evento->position()));
        viewport()->update();
    } else {
        viewport()->setCursor(sobreTexto(evento->position()) ? Qt::IBeamCursor : Qt::ArrowCursor);
    }
}

void Lienzo::mouseReleaseEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::MiddleButton) {
        m_arrastre.reset();
        viewport()->unsetCursor();
    }
    m_seleccionando = m_seleccionando && evento->button() != Qt::LeftButton;
}

void Lienzo::mouseDoubleClickEvent(QMouseEvent* evento)
{
    // The whole cell under the pointer.
    if (evento->button() != Qt::LeftButton || !sobreTexto(evento->position()))
        return;
    const LugarInforme lugar = lugarEn(evento->position());
    const int largo = int(m_paginas.vista(lugar.pagina).texto.texto(lugar.lugar.tramo).size());
    m_seleccion.empieza({lugar.pagina, {lugar.lugar.tramo, 0}});
    m_seleccion.extiende({lugar.pagina, {lugar.lugar.tramo, largo}});
    viewport()->update();
}

} // namespace kestrane::report
