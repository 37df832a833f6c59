#include "platform/report/preview/ventana_vista.h"

#include <QShortcut>
#include <QStatusBar>
#include <QVBoxLayout>

namespace kestrane::report {

using namespace Qt::StringLiterals;

void VentanaVista::monta()
{
    setStyleSheet(hojaDeEstilo());
    addToolBar(m_barra);
    auto* centro = new QWidget{this};
    auto* columna = new QVBoxLayout{centro};
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(m_banda);
    columna->addWidget(m_barraBusqueda);
    auto* reparto = new QSplitter{centro};
    reparto->setChildrenCollapsible(false);
    reparto->addWidget(panelLateral());
    reparto->addWidget(m_lienzo);
    reparto->setStretchFactor(1, 1);
    reparto->setSizes({m_miniaturas->minimumWidth(), width()}); // a narrow window is for the pages
    columna->addWidget(reparto, 1);
    setCentralWidget(centro);
    montaEstado();
}

QWidget* VentanaVista::panelLateral()
{
    m_panel = new QTabWidget{this};
    m_panel->setObjectName(u"panel"_s);
    m_panel->setDocumentMode(true);
    m_panel->addTab(m_miniaturas, u"Páginas"_s);
    m_panel->addTab(m_arbol, u"Grupos"_s);
    m_panel->setTabVisible(PestanaGrupos, false);
    return m_panel;
}

void VentanaVista::montaEstado()
{
    m_estado = new QLabel{this};
    m_estado->setObjectName(u"estado"_s);
    m_avance = new QProgressBar{this};
    m_avance->setObjectName(u"avance"_s);
    m_avance->setAccessibleName(u"Preparación del informe"_s);
    m_avance->setRange(0, 100);
    m_avance->setTextVisible(false);
    m_avance->setMaximumWidth(200);
    statusBar()->addWidget(m_estado);
    statusBar()->addPermanentWidget(m_avance);
}

void VentanaVista::conectaBarra()
{
    connect(m_barra, &BarraVista::panelPedido, this, &VentanaVista::ponPanel);
    connect(m_barra, &BarraVista::primera, this, [this] { irAPagina(0); });
    connect(m_barra, &BarraVista::anterior, this, [this] { irAPagina(m_lienzo->paginaActual() - 1); });
    connect(m_barra, &BarraVista::siguiente, this, [this] { irAPagina(m_lienzo->paginaActual() + 1); });
    connect(m_barra, &BarraVista::ultima, this, [this] { irAPagina(m_fuente->paginas() - 1); });
    connect(m_barra, &BarraVista::paginaPedida, this, [this](int pagina) {
        irAPagina(pagina);
        m_lienzo->setFocus();
    });
    connect(m_barra, &BarraVista::aleja, m_lienzo, &Lienzo::aleja);
    connect(m_barra, &BarraVista::acerca, m_lienzo, &Lienzo::acerca);
    connect(m_barra, &BarraVista::zoomPedido, m_lienzo, &Lienzo::ponZoom);
    connect(m_barra, &BarraVista::buscar, m_barraBusqueda, &BarraBusqueda::abre);
    connect(m_barra, &BarraVista::imprimir, this, qOverload<>(&VentanaVista::imprime));
    connect(m_barra, &BarraVista::exportar, this, &VentanaVista::exporta);
    connect(m_barra, &BarraVista::actualizar, this, &VentanaVista::actualiza);
    m_barra->permiteImprimir(m_servicios.impresion != nullptr);
}

void VentanaVista::conectaPaginas()
{
    connect(&m_turno, &QTimer::timeout, this, &VentanaVista::componeMas);
    connect(m_lienzo, &Lienzo::paginaCambiada, this, &VentanaVista::paginaCambiada);
    connect(m_lienzo, &Lienzo::zoomCambiado, this, &VentanaVista::zoomCambiado);
    connect(m_miniaturas, &Miniaturas::elegida, this, &VentanaVista::irAPagina);
    connect(m_arbol, &ArbolGrupos::elegida, m_lienzo, &Lienzo::vaA);
}

void VentanaVista::conectaBusqueda()
{
    connect(m_barraBusqueda, &BarraBusqueda::busquedaPedida, this, &VentanaVista::busca);
    connect(m_barraBusqueda, &BarraBusqueda::cerrada, m_lienzo, qOverload<>(&QWidget::setFocus));
    connect(&m_buscador, &Buscador::haCambiado, m_lienzo->viewport(), qOverload<>(&QWidget::update));
    connect(&m_buscador, &Buscador::actualCambiado, this,
            [this](int numero) { m_lienzo->muestraAcierto(m_buscador.acierto(numero)); });
}

void VentanaVista::atajos()
{
    atajo(QKeySequence::Find, [this] { m_barraBusqueda->abre(); });
    atajo(Qt::Key_F3, [this] { m_buscador.activo() ? m_buscador.siguiente() : m_barraBusqueda->abre(); });
    atajo(Qt::SHIFT | Qt::Key_F3, [this] { m_buscador.anterior(); });
    atajo(QKeySequence::Print, [this] { imprime(); });
    atajo(QKeySequence::Save, [this] { m_barra->abreExportar(); });
    atajo(Qt::CTRL | Qt::Key_Plus, [this] { m_lienzo->acerca(); });
    atajo(Qt::CTRL | Qt::Key_Minus, [this] { m_lienzo->aleja(); });
    atajo(Qt::CTRL | Qt::Key_0, [this] { m_lienzo->ponZoom({Zoom::Modo::Porcentaje, 100}); });
    atajo(Qt::CTRL | Qt::Key_G, [this] { m_barra->editaPagina(); });
    atajo(Qt::Key_F5, [this] { actualiza(); });
    atajo(Qt::Key_Escape, [this] { escapa(); });
    atajoDePaginas(QKeySequence::Copy, [this] { copia(); });
    atajoDePaginas(QKeySequence::SelectAll, [this] { m_lienzo->seleccionaPagina(); });
}

void VentanaVista::atajoDePaginas(const QKeySequence& teclas, const std::function<void()>& orden)
{
    connect(new QShortcut{teclas, m_lienzo, nullptr, nullptr, Qt::WidgetWithChildrenShortcut}, &QShortcut::activated, this, orden);
}

void VentanaVista::atajo(const QKeySequence& teclas, const std::function<void()>& orden)
{
    connect(new QShortcut{teclas, this}, &QShortcut::activated, this, orden);
}

} // namespace kestrane::report
