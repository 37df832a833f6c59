#include "dialogs/frm_filtros_productos.h"

#include "platform/controls/boton_menu.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <QGridLayout>

/// The dialog's controls, put together.
namespace kestrane {

using namespace Qt::StringLiterals;

void FrmFiltrosProductos::monta()
{
    QFrame* const fondo = marco(u"Frame1"_s, this);
    m_frFiltros = filtros();
    m_frOrden = ordenes();
    auto* paginas = new QGridLayout;
    paginas->addWidget(m_frFiltros, 0, 0);
    paginas->addWidget(m_frOrden, 0, 0);
    m_frOrden->hide();
    auto* columna = new QVBoxLayout{fondo};
    columna->setContentsMargins(20, 18, 20, 18);
    columna->addLayout(paginas, 1);
    columna->addLayout(pie({botonSalir(fondo)}));
    auto* exterior = new QVBoxLayout{this};
    exterior->setContentsMargins({});
    exterior->addWidget(fondo);
}

QFrame* FrmFiltrosProductos::filtros()
{
    m_frFiltros = new QFrame{this};
    m_frFiltros->setObjectName(u"frFiltros"_s);
    m_frFiltros->setFrameShape(QFrame::StyledPanel);
    m_frFiltros->setProperty(propiedades::Tarjeta, true);
    auto* rejilla = new QGridLayout{m_frFiltros};
    rejilla->setContentsMargins(16, 12, 16, 12);
    rejilla->setHorizontalSpacing(28);
    rejilla->setVerticalSpacing(16);
    rejilla->addWidget(bloque(BloqueProductos::Proveedor, u"PanelProveedores"_s, u"cmdAceptarPv"_s), 0, 0);
    rejilla->addWidget(bloque(BloqueProductos::Seccion, u"PanelSecciones"_s, u"cmdAceptarSec"_s), 0, 1);
    rejilla->addWidget(bloque(BloqueProductos::Tipo, {}, u"cmdAceptarTipo"_s), 1, 0);
    rejilla->addWidget(bloque(BloqueProductos::BajoMinimo, u"PanelProveedoresBM"_s, u"cmdAceptarPvBM"_s), 1, 1);
    for (const int lado : {0, 1}) {
        rejilla->setColumnStretch(lado, 1);
        rejilla->setRowStretch(lado, 1);
    }
    return m_frFiltros;
}

QFrame* FrmFiltrosProductos::bloque(BloqueProductos cual, const QString& panel, const QString& aceptar)
{
    Bloque& suyo = m_bloques[cual];
    suyo.marco = marco(u"fr"_s + aceptar.mid(QStringView{u"cmdAceptar"}.size()), m_frFiltros);
    auto* columna = new QVBoxLayout{suyo.marco};
    columna->setContentsMargins({});
    auto* cabeza = new QHBoxLayout;
    cabeza->addWidget(encabezado(suyo.marco->objectName() + u"_rotulo"_s, leyendaDe(cual), suyo.marco), 1);
    suyo.aceptar = boton(aceptar, u"Aceptar"_s, suyo.marco);
    QSizePolicy sitio = suyo.aceptar->sizePolicy();
    sitio.setRetainSizeWhenHidden(true); // nothing moves below a finger
    suyo.aceptar->setSizePolicy(sitio);
    suyo.aceptar->hide();
    cabeza->addWidget(suyo.aceptar);
    columna->addLayout(cabeza);
    if (cual == BloqueProductos::Tipo)
        llenaConClases();
    else
        llenaConPanel(cual, panel);
    connect(suyo.aceptar, &QPushButton::clicked, this, [this, cual] { acepta(cual); });
    return suyo.marco;
}

void FrmFiltrosProductos::llenaConPanel(BloqueProductos cual, const QString& objeto)
{
    Bloque& bloque = m_bloques.at(cual);
    bloque.panel = new TilePanel{objeto, bloque.marco};
    bloque.panel->setMinimumHeight(3 * LadoTactil);
    qobject_cast<QVBoxLayout*>(bloque.marco->layout())->addWidget(bloque.panel, 1);
    connect(bloque.panel, &TilePanel::pulsado, this, [this, cual](const ElementoPanel& elemento) {
        m_decision.elige(cual, elemento);
        elegido(cual);
    });
}

void FrmFiltrosProductos::llenaConClases()
{
    QFrame* const marco = m_bloques.at(BloqueProductos::Tipo).marco;
    auto* columna = qobject_cast<QVBoxLayout*>(marco->layout());
    for (const OpcionDeClase& opcion : opcionesDeClase()) {
        auto* suya = new QRadioButton{opcion.leyenda.toString(), marco};
        suya->setObjectName(opcion.control.toString());
        suya->setMinimumHeight(LadoTactil);
        columna->addWidget(suya, 0, Qt::AlignLeft);
        m_clases += suya;
        connect(suya, &QRadioButton::clicked, this, [this, &opcion] {
            m_decision.eligeClase(opcion);
            elegido(BloqueProductos::Tipo);
        });
    }
    columna->addStretch(1);
}

QFrame* FrmFiltrosProductos::ordenes()
{
    QFrame* const pagina = marco(u"frOrden"_s, this);
    auto* centro = columnaDeOrdenes(ordenesDeProductos(), pagina);
    centro->insertStretch(0, 1);
    centro->addStretch(1);
    auto* fila = new QHBoxLayout{pagina};
    fila->addStretch(1);
    fila->addLayout(centro);
    fila->addStretch(1);
    return pagina;
}

} // namespace kestrane
