#include "pipeline/forms/ayuda_deslizante.h"

#include "platform/suite/windows/aspecto_ventanas.h"

#include <chrono>
#include <cmath>

namespace kestrane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr double Paso = 100; ///< twips per tick
constexpr double MargenDerecho = 100;
constexpr int AnchoMaximo = 640;

} // namespace

AyudaDeslizante::AyudaDeslizante(QWidget* ventana, const QWidget* tope)
    : QObject{ventana}
    , m_ventana{ventana}
    , m_tope{tope}
    , m_panel{new HelpPageViewer{u"Open1"_s, ventana}}
    , m_temporizador{new QTimer{ventana}}
{
    m_temporizador->setObjectName(u"tmrAyuda"_s);
    m_temporizador->setInterval(1ms);
    connect(m_temporizador, &QTimer::timeout, this, &AyudaDeslizante::avanza);
    connect(m_panel, &HelpPageViewer::cierre, this, [this](bool cerrar) {
        if (cerrar)
            cierra();
    });
    m_panel->hide();
}

double AyudaDeslizante::altoDeVentana() const
{
    return twipsDePuntos(m_ventana->height());
}

double AyudaDeslizante::topeDentro() const
{
    return twipsDePuntos(m_tope->mapTo(m_ventana, QPoint{0, m_tope->height()}).y());
}

double AyudaDeslizante::destino() const
{
    return m_haciaDentro ? topeDentro() : altoDeVentana();
}

void AyudaDeslizante::ponArriba(double arriba)
{
    m_arriba = arriba;
    m_panel->move(m_panel->x(), static_cast<int>(std::lround(puntosDeTwips(arriba))));
}

void AyudaDeslizante::ponAlto()
{
    m_panel->resize(m_panel->width(), static_cast<int>(std::lround(puntosDeTwips(altoDeVentana() - topeDentro()))));
}

void AyudaDeslizante::ColocarAyuda()
{
    const int margen = static_cast<int>(std::lround(puntosDeTwips(MargenDerecho)));
    m_panel->resize(std::min(AnchoMaximo, m_ventana->width() - 2 * margen), m_panel->height());
    m_panel->move(m_ventana->width() - m_panel->width() - margen, 0);
    ponArriba(altoDeVentana());
}

void AyudaDeslizante::abre(const QString& ruta)
{
    if (!m_haciaDentro)
        m_focoAntes = m_ventana->focusWidget();
    m_haciaDentro = true;
    m_panel->ponRuta(ruta);
    ColocarAyuda();
    ponAlto();
    m_panel->show();
    m_panel->raise();
    m_panel->abre();
    m_temporizador->start();
}

void AyudaDeslizante::cierra()
{
    m_haciaDentro = false;
    if (m_focoAntes)
        m_focoAntes->setFocus(Qt::OtherFocusReason);
    m_temporizador->start();
}

void AyudaDeslizante::avanza()
{
    const bool ahi = m_haciaDentro ? m_arriba <= destino() : m_arriba >= destino();
    if (!ahi)
        return ponArriba(m_arriba + (m_haciaDentro ? -Paso : Paso));
    ponArriba(destino());
    m_temporizador->stop();
    if (!m_haciaDentro)
        m_panel->hide(); // out of sight: the focus must not go there
}

void AyudaDeslizante::acomoda()
{
    const bool quieta = !m_temporizador->isActive();
    const double arriba = m_arriba;
    ColocarAyuda();
    if (m_haciaDentro) {
        ponAlto();
        ponArriba(quieta ? destino() : arriba);
    }
}

} // namespace kestrane
