#include "platform/report/preview/ventana_vista.h"

#include <QCloseEvent>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kestrane::report {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto Turno = 12ms; ///< short enough that the wheel does not stutter

} // namespace

VentanaVista::VentanaVista(std::unique_ptr<FuenteVista> fuente, const QString& titulo, QString impresora, ServiciosVista servicios,
                           RecuerdoVista& recuerdo)
    : m_fuente{std::move(fuente)}
    , m_paginas{*m_fuente, [this](const QString& motivo) { fallaPagina(motivo); }}
    , m_buscador{m_paginas}
    , m_servicios{std::move(servicios)}
    , m_recuerdo{recuerdo}
    , m_impresora{std::move(impresora)}
    , m_barra{new BarraVista{this}}
    , m_barraBusqueda{new BarraBusqueda{m_buscador, this}}
    , m_banda{new BandaAviso{this}}
    , m_lienzo{new Lienzo{m_paginas, m_buscador, this}}
    , m_miniaturas{new Miniaturas{m_paginas, this}}
    , m_arbol{new ArbolGrupos{this}}
{
    setObjectName(u"vistaPrevia"_s);
    setWindowTitle(titulo);
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its main window
    monta();
    conectaBarra();
    conectaPaginas();
    conectaBusqueda();
    atajos();
    resize(m_recuerdo.tamano.boundedTo(screen()->availableGeometry().size()));
    if (m_recuerdo.maximizada)
        setWindowState(Qt::WindowMaximized);
    m_barra->ponPanel(m_recuerdo.panel);
    m_panel->setVisible(m_recuerdo.panel);
    m_lienzo->ponZoom(m_recuerdo.zoom);
    m_lienzo->setFocus();
    m_totalSabido = m_fuente->completa();
    refresca();
    sigueComponiendo();
}

VentanaVista::~VentanaVista()
{
    // What shows the report goes before the report.
    m_turno.stop();
    delete takeCentralWidget();
}

void VentanaVista::componeMas()
{
    const QString motivo = fallo([this] { m_fuente->avanza(QDeadlineTimer{Turno}); });
    if (!motivo.isEmpty() || m_fuente->completa())
        m_turno.stop();
    if (!motivo.isEmpty())
        quedaIncompleta(motivo);
    refresca();
}

void VentanaVista::sigueComponiendo()
{
    // What failed would fail again.
    if (!m_fuente->completa() && !m_incompleta)
        m_turno.start(0);
}

void VentanaVista::quedaIncompleta(const QString& motivo)
{
    m_incompleta = true;
    m_buscador.ponIncompleto(true);
    fallaPagina(motivo);
}

void VentanaVista::totalSabido()
{
    // Pages that say how many there are were composed without knowing it.
    m_totalSabido = true;
    m_paginas.olvida();
    m_miniaturas->olvida();
    m_lienzo->viewport()->update();
}

void VentanaVista::refresca()
{
    if (m_fuente->completa() && !m_totalSabido)
        totalSabido();
    m_lienzo->anadePaginas();
    m_miniaturas->ponPaginas(m_fuente->paginas());
    m_arbol->crece(m_fuente->indice(), m_fuente->completa() || m_incompleta);
    m_panel->setTabVisible(PestanaGrupos, !m_fuente->indice().empty());
    m_barra->permiteImprimir(m_servicios.impresion && m_fuente->paginas() > 0);
    m_buscador.sigue();
    paginaCambiada();
    refrescaEstado();
}

void VentanaVista::refrescaEstado()
{
    const int paginas = m_fuente->paginas();
    const bool completa = m_fuente->completa();
    const QString cuenta = paginas == 1 ? u"1 página"_s : u"%1 páginas"_s.arg(paginas);
    const QString nombre = m_fuente->titulo().isEmpty() ? u""_s : m_fuente->titulo() + u" · "_s;
    const QString pendiente = m_incompleta ? u"informe incompleto, %1"_s : u"preparando el informe, %1 hasta ahora"_s;
    m_estado->setText(nombre + (completa ? cuenta : pendiente.arg(cuenta)));
    m_avance->setVisible(!completa && m_turno.isActive());
    m_avance->setValue(qRound(m_fuente->avance() * 100));
}

void VentanaVista::paginaCambiada()
{
    const int pagina = m_lienzo->paginaActual();
    m_barra->ponPagina(pagina, m_fuente->paginas(), m_fuente->completa());
    m_miniaturas->senala(pagina);
}

void VentanaVista::zoomCambiado()
{
    m_recuerdo.zoom = m_lienzo->zoom();
    m_barra->ponZoom(m_lienzo->zoom(), m_lienzo->porcentaje());
}

void VentanaVista::ponPanel(bool visible)
{
    m_recuerdo.panel = visible;
    m_panel->setVisible(visible);
}

void VentanaVista::irAPagina(int pagina)
{
    m_lienzo->vaAPagina(std::clamp(pagina, 0, std::max(m_fuente->paginas() - 1, 0)));
}

void VentanaVista::busca(const QString& texto)
{
    m_buscador.busca(texto, std::max(m_lienzo->paginaActual(), 0));
}

void VentanaVista::escapa()
{
    if (m_barraBusqueda->isVisible())
        m_barraBusqueda->cierra();
    else if (m_lienzo->haySeleccion())
        m_lienzo->quitaSeleccion();
    else
        close();
}

void VentanaVista::closeEvent(QCloseEvent* evento)
{
    m_recuerdo.maximizada = isMaximized();
    if (m_enObra) {
        m_enObra->reject();
        evento->ignore();
    }
}

void VentanaVista::resizeEvent(QResizeEvent* evento)
{
    QMainWindow::resizeEvent(evento);
    if (isVisible() && !isMaximized())
        m_recuerdo.tamano = size();
}

void VentanaVista::keyPressEvent(QKeyEvent* evento)
{
    // Keys for the pages work from every control that has no use of its own for them. Sent on as an event, one that the pages have
    // no use for either would come back here.
    if (!m_lienzo->teclaDePaginas(evento->key(), evento->modifiers()))
        QMainWindow::keyPressEvent(evento);
}

void VentanaVista::fallaPagina(const QString& motivo)
{
    // It may be told of while painting.
    QMetaObject::invokeMethod(
        this, [this, motivo] { m_banda->di(BandaAviso::Clase::Fallo, u"El informe no se puede mostrar entero. "_s + motivo); },
        Qt::QueuedConnection);
}

} // namespace kestrane::report
