#include "dialogs/frm_historico_x_clientes.h"

#include "platform/controls/boton_menu.h"

#include <QGridLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr double ParteDeLaVentana = 0.9;
constexpr int AnchoDeSecciones = 320;

} // namespace

FrmHistoricoXClientes::FrmHistoricoXClientes(const ServiciosDialogo& servicios)
    : FormaHistorico{u"frmHistoricoXClientes"_s, u"Historico x Clientes"_s, servicios}
    , m_decision{servicios.contexto}
{
    monta();
    sirve(m_decision);
}

void FrmHistoricoXClientes::monta()
{
    m_frame4 = marco(u"Frame4"_s, &fondo());
    m_frame2 = secciones();
    m_frame3 = ventas();
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(&periodo());
    izquierda->addLayout(casillas());
    izquierda->addWidget(&tienda(), 1);
    izquierda->addStretch();
    auto* derecha = new QVBoxLayout{m_frame4};
    derecha->setContentsMargins({});
    derecha->addWidget(m_frame2, 1);
    derecha->addWidget(m_frame3);
    auto* lados = new QHBoxLayout;
    lados->setSpacing(20);
    lados->addLayout(izquierda);
    lados->addWidget(m_frame4, 1);
    QPushButton* const aceptar = botonAceptar(&fondo());
    auto* columna = new QVBoxLayout{&fondo()};
    columna->setContentsMargins(20, 18, 20, 18);
    columna->addLayout(lados, 1);
    columna->addLayout(pie({aceptar, botonSalir(&fondo())}));
    connect(aceptar, &QPushButton::clicked, this, &FrmHistoricoXClientes::acepta);
}

QFrame* FrmHistoricoXClientes::secciones()
{
    QFrame* const panel = marco(u"Frame2"_s, m_frame4);
    m_todas = casilla(u"Check1"_s, u"Todas las Secciones"_s, panel);
    m_panel = new TilePanel{u"PanelSecciones"_s, panel};
    m_panel->setMinimumSize(AnchoDeSecciones, 4 * LadoTactil);
    auto* columna = new QVBoxLayout{panel};
    columna->setContentsMargins({});
    columna->addWidget(m_todas, 0, Qt::AlignLeft);
    columna->addWidget(m_panel, 1);
    connect(m_panel, &TilePanel::pulsado, this, [this](const ElementoPanel& seccion) {
        m_todas->setChecked(false);
        m_decision.eligeSeccion(codigoDe(seccion));
    });
    connect(m_todas, &QCheckBox::clicked, this, [this](bool marcada) { m_decision.todasLasSecciones(marcada); });
    return panel;
}

QFrame* FrmHistoricoXClientes::ventas()
{
    QFrame* const panel = marco(u"Frame3"_s, m_frame4);
    m_productos = opcion(u"optprod"_s, u"Productos"_s, panel);
    m_servicios = opcion(u"optServ"_s, u"Servicios"_s, panel);
    m_ambos = opcion(u"optAmbos"_s, u"Ambos"_s, panel);
    m_ambos->setChecked(true);
    auto* fila = new QHBoxLayout{panel};
    fila->setContentsMargins({});
    for (QRadioButton* const suya : {m_productos, m_servicios, m_ambos})
        fila->addWidget(suya);
    fila->addStretch(1);
    return panel;
}

QRadioButton* FrmHistoricoXClientes::opcion(const QString& objeto, const QString& leyenda, QWidget* padre)
{
    auto* nueva = new QRadioButton{leyenda, padre};
    nueva->setObjectName(objeto);
    nueva->setMinimumHeight(LadoTactil);
    return nueva;
}

void FrmHistoricoXClientes::carga()
{
    viste();
    m_decision.carga();
    periodo().carga();
    escala();
    cargarTablaSecciones();
    tienda().CargarTiendas(fondo(), fondo());
    ensenaCompleto();
    if (!m_decision.preguntaVentas()) {
        m_productos->setChecked(true);
        m_frame3->hide();
    }
    ocupa(ParteDeLaVentana);
    periodo().setFocus();
}

void FrmHistoricoXClientes::cargarTablaSecciones()
{
    m_panel->ponColores(fondoDe(*m_frame2), fondoDe(*m_frame4));
    m_secciones = cargaPanel(contexto(), PanelDe::Secciones, BotonDeTodos::Sin, cargarColoresPredefinidos());
    m_panel->da(m_secciones);
}

void FrmHistoricoXClientes::acepta()
{
    using Ventas = DecisionHistoricoClientes::Ventas;
    const Ventas ventas = m_productos->isChecked()   ? Ventas::Productos
                          : m_servicios->isChecked() ? Ventas::Servicios
                                                     : Ventas::Ambos;
    terminaSi(m_decision.acepta(periodo().desde(), periodo().hasta(), ventas));
}

} // namespace kestrane
