#include "pipeline/forms/frm_esperar.h"

#include <QCloseEvent>

#include <chrono>

namespace kestrane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto IntervaloTics = 50ms;

} // namespace

void TicsDeReloj::empieza(QWidget& ventana, const std::function<void()>& tic)
{
    m_temporizador = new QTimer{&ventana};
    m_temporizador->setObjectName(u"tmr_barra"_s);
    m_temporizador->setTimerType(Qt::PreciseTimer);
    QObject::connect(m_temporizador, &QTimer::timeout, &ventana, tic);
    m_temporizador->start(IntervaloTics);
}

void TicsDeReloj::para()
{
    if (m_temporizador)
        m_temporizador->stop();
}

FrmEsperar::FrmEsperar(const ContextoEjecucion& contexto, AspectoVentanas& aspecto, QWidget* principal, FuenteDeTics& tics)
    : VentanaConBarra{u"frmEsperar"_s, contexto, aspecto, principal}
    , m_tics{tics}
{
    anadeRotuloOculto(u"formulario utilizado para dar tiempo a carga los report"_s);
    setModal(true);
    m_tics.empieza(*this, [this] { avanza(); });
}

FrmEsperar::~FrmEsperar()
{
    m_tics.para();
}

void FrmEsperar::avanza()
{
    barra().setValue(barra().value() + 1);
    if (barra().value() < 100)
        return;
    m_tics.para();
    barra().setValue(0);
    m_cumplida = true;
    close();
}

void FrmEsperar::closeEvent(QCloseEvent* evento)
{
    if (m_cumplida)
        VentanaConBarra::closeEvent(evento);
    else
        evento->ignore();
}

void EsperaEnVentana::Muestra()
{
    FrmEsperar{m_contexto, m_aspecto, m_principal, m_tics}.exec();
}

} // namespace kestrane
