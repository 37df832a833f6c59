#include "pipeline/forms/frm_parar.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QPointer>
#include <QWindow>

namespace kestrane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto EntrePintadas = 40ms;
constexpr auto EsperaDeExposicion = 400ms; ///< a window that some other one hides is never exposed

} // namespace

Cronometro cronometroDeMaquina()
{
    QElapsedTimer cronometro;
    cronometro.start();
    return [cronometro] { return std::chrono::milliseconds{cronometro.elapsed()}; };
}

FrmParar::FrmParar(const ContextoEjecucion& contexto, AspectoVentanas& aspecto, QWidget* principal, Cronometro cronometro)
    : VentanaConBarra{u"frmParar"_s, contexto, aspecto, principal}
    , m_cronometro{std::move(cronometro)}
{
}

void FrmParar::muestraExpuesta()
{
    show();
    const QDeadlineTimer plazo{EsperaDeExposicion};
    const QPointer<FrmParar> viva{this};
    while (!windowHandle()->isExposed() && !plazo.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
        if (!viva)
            return; // somebody's timer has closed it
    }
    repaint();
    m_pintada = m_cronometro();
}

void FrmParar::IncrementaBarra()
{
    const int valor = barra().value() + 1;
    cambiaSinPintar(valor >= 100 ? 0 : valor);
    const auto ahora = m_cronometro();
    if (ahora - m_pintada < EntrePintadas)
        return;
    m_pintada = ahora;
    repaint();
}

void FrmParar::cambiaSinPintar(int valor)
{
    // A visible bar paints itself in setValue.
    barra().setUpdatesEnabled(false);
    barra().setValue(valor);
    barra().setUpdatesEnabled(true);
}

ProgresoEnVentana::ProgresoEnVentana(const ContextoEjecucion& contexto, AspectoVentanas& aspecto, QWidget* principal,
                                     Cronometro cronometro)
    : m_contexto{contexto}
    , m_aspecto{aspecto}
    , m_principal{principal}
    , m_cronometro{std::move(cronometro)}
{
}

void ProgresoEnVentana::Muestra()
{
    if (!m_ventana)
        m_ventana = std::make_unique<FrmParar>(m_contexto, m_aspecto, m_principal, m_cronometro);
    m_ventana->muestraExpuesta();
}

void ProgresoEnVentana::IncrementaBarra()
{
    if (m_ventana)
        m_ventana->IncrementaBarra();
}

} // namespace kestrane
