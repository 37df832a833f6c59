#include "dialogs/frm_historico_x_empleados.h"

#include <QGridLayout>

/// The dialog's controls, put together.
namespace kestrane {

using namespace Qt::StringLiterals;

void FrmHistoricoXEmpleados::monta()
{
    montaEtapas();
    auto* columna = new QVBoxLayout{&fondo()};
    columna->setContentsMargins(20, 18, 20, 18);
    columna->setSpacing(12);
    columna->addLayout(cabecera());
    columna->addWidget(m_etapas, 1);
    columna->addLayout(pieConElegido());
}

/// The period, and beside it boxes and stores.
QLayout* FrmHistoricoXEmpleados::cabecera()
{
    auto* derecha = new QVBoxLayout;
    derecha->addLayout(casillas());
    derecha->addWidget(&tienda(), 1);
    derecha->addStretch();
    auto* fila = new QHBoxLayout;
    fila->setSpacing(20);
    fila->addWidget(&periodo());
    fila->addLayout(derecha, 1);
    return fila;
}

void FrmHistoricoXEmpleados::montaEtapas()
{
    m_etapas = marco(u"Frame5"_s, &fondo());
    m_quien = quien();
    m_como = como();
    m_conEmpleados = empleados();
    auto* rejilla = new QGridLayout{m_etapas};
    rejilla->setContentsMargins({});
    rejilla->setHorizontalSpacing(20);
    rejilla->addWidget(m_quien, 0, 0);
    rejilla->addWidget(m_como, 0, 0); // in the same place
    rejilla->addWidget(m_conEmpleados, 0, 1);
    rejilla->setColumnStretch(1, 1);
    m_como->hide();
    m_conEmpleados->hide();
}

QFrame* FrmHistoricoXEmpleados::quien()
{
    m_uno = dibujado(u"cmdUno"_s, u"lblUno"_s, u"Un Empleado"_s, DibujoDe::UnEmpleado);
    BotonDibujado* const todos = dibujado(u"cmdTodos"_s, u"lblTodos"_s, u"Todos los Empleados"_s, DibujoDe::TodosLosEmpleados);
    connect(m_uno, &BotonDibujado::pulsado, this, &FrmHistoricoXEmpleados::mostrarEmpleados);
    connect(todos, &BotonDibujado::pulsado, this, &FrmHistoricoXEmpleados::eligeTodos);
    return pareja(u"fremp"_s, u"SELECCIONE EL EMPLEADO"_s, m_uno, todos);
}

QFrame* FrmHistoricoXEmpleados::como()
{
    m_detallado = dibujado(u"cmdDeta"_s, u"cmdDetal1"_s, u"Listado Detallado"_s, DibujoDe::Detalle);
    BotonDibujado* const total = dibujado(u"cmdTotal"_s, u"cmdTotal1"_s, u"Listado Totalizado"_s, DibujoDe::Total);
    connect(m_detallado, &BotonDibujado::pulsado, this, [this] { responde(false); });
    connect(total, &BotonDibujado::pulsado, this, [this] { responde(true); });
    return pareja(u"frSeleccion2"_s, u"COMO DESEA ESTE LISTADO"_s, m_detallado, total);
}

BotonDibujado* FrmHistoricoXEmpleados::dibujado(const QString& boton, const QString& rotulo, const QString& leyenda,
                                                DibujoDe dibujo)
{
    const QColor tinta = palette().color(QPalette::ButtonText);
    auto* nuevo = new BotonDibujado{boton, rotulo, dibujoDeEleccion(dibujo, tinta), m_etapas};
    nuevo->ponLeyenda(leyenda);
    return nuevo;
}

QFrame* FrmHistoricoXEmpleados::pareja(const QString& objeto, const QString& leyenda, BotonDibujado* una, BotonDibujado* otra)
{
    QFrame* const panel = marco(objeto, m_etapas);
    auto* rejilla = new QGridLayout{panel};
    rejilla->setContentsMargins({});
    rejilla->addWidget(encabezado(objeto + u"_rotulo"_s, leyenda, panel), 0, 0, 1, 2);
    rejilla->addWidget(una, 1, 0);
    rejilla->addWidget(otra, 1, 1);
    rejilla->setRowStretch(1, 1);
    return panel;
}

QFrame* FrmHistoricoXEmpleados::empleados()
{
    QFrame* const panel = marco(u"frempleados"_s, m_etapas);
    m_panel = new TilePanel{u"PanelEmpleados"_s, panel};
    m_panel->pulsaConEnter();
    QPushButton* const atras = boton(u"Command7"_s, u"Volver"_s, panel);
    auto* columna = new QVBoxLayout{panel};
    columna->setContentsMargins({});
    columna->addWidget(m_panel, 1);
    columna->addWidget(atras, 0, Qt::AlignLeft);
    connect(m_panel, &TilePanel::pulsado, this, &FrmHistoricoXEmpleados::eligeEmpleado);
    connect(atras, &QPushButton::clicked, this, &FrmHistoricoXEmpleados::vuelve);
    return panel;
}

/// Whom the report is about, always in sight, and the buttons.
QLayout* FrmHistoricoXEmpleados::pieConElegido()
{
    m_elegido = rotulo(u"lblEmpbus"_s, {}, &fondo());
    m_elegido->setTextFormat(Qt::PlainText);
    m_elegido->setWordWrap(true);
    m_aceptar = botonAceptar(&fondo());
    m_aceptar->hide();
    connect(m_aceptar, &QPushButton::clicked, this, [this] { terminaSi(m_decision.acepta(periodo().desde(), periodo().hasta())); });
    m_salir = botonSalir(&fondo());
    auto* fila = new QHBoxLayout;
    fila->addWidget(rotulo(u"Label3"_s, u"EMPLEADO SELECCIONADO: "_s, &fondo()));
    fila->addWidget(m_elegido, 1);
    fila->addLayout(pie({m_aceptar, m_salir}));
    return fila;
}

} // namespace kestrane
