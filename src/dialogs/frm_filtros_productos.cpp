#include "dialogs/frm_filtros_productos.h"

#include <QRadioButton>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr double ParteDeLaVentana = 0.94;

} // namespace

FrmFiltrosProductos::FrmFiltrosProductos(const ServiciosDialogo& servicios)
    : FormaFiltro{u"frmFiltrosProductos"_s, u"Listado de Productos"_s, servicios}
    , m_decision{servicios.contexto}
{
    monta();
}

void FrmFiltrosProductos::carga()
{
    m_decision.carga();
    aspecto().PintarForm(*this);
    cargarPaneles();
    escala();
    ocupa(ParteDeLaVentana);
    m_bloques.at(BloqueProductos::Proveedor).panel->enfoca();
}

void FrmFiltrosProductos::cargarPaneles()
{
    const ColoresPredefinidos colores = cargarColoresPredefinidos();
    m_proveedores = cargaPanel(contexto(), PanelDe::Proveedores, BotonDeTodos::Con, colores);
    cargarPanel(BloqueProductos::Proveedor, m_proveedores);
    cargarPanel(BloqueProductos::BajoMinimo, m_proveedores);
    m_secciones = cargaPanel(contexto(), PanelDe::Secciones, BotonDeTodos::Con, colores);
    cargarPanel(BloqueProductos::Seccion, m_secciones);
}

void FrmFiltrosProductos::cargarPanel(BloqueProductos cual, const ArrayPanel& elementos)
{
    const Bloque& bloque = m_bloques.at(cual);
    bloque.panel->ponColores(fondoDe(*bloque.marco), fondoDe(*m_frFiltros));
    bloque.panel->da(elementos);
    bloque.panel->usaColores(true);
}

void FrmFiltrosProductos::showEvent(QShowEvent* evento)
{
    FormaFiltro::showEvent(evento);
    if (std::exchange(m_alFrente, true) || !contexto().SoloBajoMinimos)
        return;
    acepta(BloqueProductos::BajoMinimo);
}

/// The one accept button in sight is that of the block chosen in last, where alone something is marked.
void FrmFiltrosProductos::elegido(BloqueProductos cual)
{
    for (const auto& [suyo, bloque] : m_bloques) {
        bloque.aceptar->setVisible(suyo == cual);
        bloque.aceptar->setDefault(suyo == cual);
        if (suyo == cual)
            continue;
        if (bloque.panel)
            bloque.panel->desmarca();
        else
            desmarcaClases();
    }
}

void FrmFiltrosProductos::desmarcaClases()
{
    for (QRadioButton* const clase : m_clases) {
        clase->setAutoExclusive(false); // one of several that exclude each other is not left unmarked
        clase->setChecked(false);
        clase->setAutoExclusive(true);
    }
}

void FrmFiltrosProductos::acepta(BloqueProductos cual)
{
    m_decision.acepta(cual);
    mostrarPanelOrden();
}

void FrmFiltrosProductos::mostrarPanelOrden()
{
    m_frOrden->show();
    m_frFiltros->hide();
    auto* const primero = m_frOrden->findChild<QPushButton*>(u"Command1"_s);
    primero->setDefault(true);
    primero->setFocus();
}

} // namespace kestrane
