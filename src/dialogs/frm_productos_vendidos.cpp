#include "dialogs/frm_productos_vendidos.h"

#include <QGridLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr double ParteDeLaVentana = 0.85;

} // namespace

FrmProductosVendidos::FrmProductosVendidos(const ServiciosDialogo& servicios)
    : FormaFiltro{u"frmProductosVendidos"_s, u"Listado Productos Vendidos"_s, servicios}
    , m_decision{servicios.contexto}
    , m_fondo{marco(u"Frame1"_s, this)}
{
    monta();
}

void FrmProductosVendidos::monta()
{
    m_empleados = pagina(u"frempleados"_s, u"SELECCIONE EL EMPLEADO"_s, u"PanelEmpleados"_s);
    m_proveedores = pagina(u"frProveedor"_s, u"SELECCIONE EL PROVEEDOR"_s, u"PanelProveedores"_s);
    QPushButton* const sal = boton(u"Command7"_s, u"Salir"_s, m_empleados.marco);
    QPushButton* const atras = boton(u"Command2"_s, u"Volver"_s, m_proveedores.marco);
    m_empleados.marco->layout()->addItem(pie({sal}));
    m_proveedores.marco->layout()->addItem(pie({atras, botonSalir(m_proveedores.marco)}));
    m_aceptar = boton(u"Command1"_s, u"Aceptar"_s, m_proveedores.marco); // what a press on a supplier comes to: never in sight
    m_aceptar->hide();

    auto* capas = new QGridLayout{m_fondo}; // one page on top of the other
    capas->setContentsMargins(20, 18, 20, 18);
    capas->addWidget(m_empleados.marco, 0, 0);
    capas->addWidget(m_proveedores.marco, 0, 0);
    m_proveedores.marco->hide();
    auto* exterior = new QVBoxLayout{this};
    exterior->setContentsMargins({});
    exterior->addWidget(m_fondo);

    connect(m_empleados.panel, &TilePanel::pulsado, this, [this](const ElementoPanel& empleado) {
        m_decision.eligeEmpleado(codigoDe(empleado));
        ensena(m_proveedores, m_empleados);
    });
    connect(m_proveedores.panel, &TilePanel::pulsado, this, [this](const ElementoPanel& proveedor) {
        m_decision.eligeProveedor(codigoDe(proveedor));
        m_aceptar->click();
    });
    connect(m_aceptar, &QPushButton::clicked, this, &FrmProductosVendidos::acepta);
    connect(atras, &QPushButton::clicked, this, [this] { ensena(m_empleados, m_proveedores); });
    connect(sal, &QPushButton::clicked, this, &FrmProductosVendidos::reject);
}

FrmProductosVendidos::Pagina FrmProductosVendidos::pagina(const QString& objeto, const QString& leyenda, const QString& panel)
{
    Pagina nueva;
    nueva.marco = marco(objeto, m_fondo);
    nueva.panel = new TilePanel{panel, nueva.marco};
    nueva.panel->pulsaConEnter();
    auto* columna = new QVBoxLayout{nueva.marco};
    columna->setContentsMargins({});
    columna->addWidget(encabezado(objeto + u"_rotulo"_s, leyenda, nueva.marco));
    columna->addWidget(nueva.panel, 1);
    return nueva;
}

void FrmProductosVendidos::carga()
{
    aspecto().PintarForm(*this);
    const ColoresPredefinidos colores = cargarColoresPredefinidos();
    llena(m_empleados, cargaPanel(contexto(), PanelDe::Empleados, BotonDeTodos::Con, colores));
    m_empleados.panel->usaColores(contexto().UtilizaColoresEmpleados);
    llena(m_proveedores, cargaPanel(contexto(), PanelDe::Proveedores, BotonDeTodos::Con, colores));
    ocupa(ParteDeLaVentana);
    m_empleados.panel->enfoca();
}

void FrmProductosVendidos::llena(const Pagina& pagina, const ArrayPanel& elementos)
{
    pagina.panel->ponColores(fondoDe(*pagina.marco), fondoDe(*pagina.marco));
    if (elementos.reservado())
        pagina.panel->da(elementos);
}

void FrmProductosVendidos::ensena(const Pagina& una, const Pagina& otra)
{
    otra.marco->hide();
    una.marco->show();
    una.panel->enfoca();
}

void FrmProductosVendidos::acepta()
{
    m_decision.acepta();
    accept();
}

} // namespace kestrane
