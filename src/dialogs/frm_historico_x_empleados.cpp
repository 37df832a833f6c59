#include "dialogs/frm_historico_x_empleados.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr double ParteDeLaVentana = 0.9;

} // namespace

FrmHistoricoXEmpleados::FrmHistoricoXEmpleados(const ServiciosDialogo& servicios)
    : FormaHistorico{u"frmHistoricoXEmpleados"_s, u"Historico x Empleados"_s, servicios}
    , m_decision{servicios.contexto}
{
    monta();
    sirve(m_decision);
}

void FrmHistoricoXEmpleados::carga()
{
    m_decision.carga();
    viste();
    periodo().carga();
    cargarEmpleados();
    tienda().CargarTiendas(*m_quien, fondo());
    escala();
    periodo().ajustaAlto(contexto().AltoVentana);
    ensenaCompleto();
    ocupa(ParteDeLaVentana);
    periodo().setFocus();
}

void FrmHistoricoXEmpleados::cargarEmpleados()
{
    m_empleados = cargaPanel(contexto(), PanelDe::Empleados, BotonDeTodos::Sin, cargarColoresPredefinidos());
    m_panel->ponColores(fondoDe(*m_quien), fondoDe(*m_quien));
    m_panel->usaColores(contexto().UtilizaColoresEmpleados);
    m_panel->da(m_empleados);
}

void FrmHistoricoXEmpleados::mostrarEmpleados()
{
    m_conEmpleados->show();
    m_panel->enfoca();
}

void FrmHistoricoXEmpleados::eligeTodos()
{
    m_decision.eligeTodos();
    m_elegido->setText(u"Todos"_s);
    preguntaComo();
}

void FrmHistoricoXEmpleados::eligeEmpleado(const ElementoPanel& empleado)
{
    m_decision.eligeEmpleado(codigoDe(empleado));
    m_elegido->setText(empleado.Nombre);
    preguntaComo();
}

/// It covers the first question, which the keyboard does not reach below it.
void FrmHistoricoXEmpleados::preguntaComo()
{
    m_como->show();
    m_como->raise();
    m_quien->setEnabled(false);
    m_detallado->setFocus();
}

void FrmHistoricoXEmpleados::responde(bool totalizado)
{
    if (totalizado)
        m_decision.totaliza();
    else
        m_decision.detalla();
    m_como->hide();
    m_quien->setEnabled(true);
    m_aceptar->show();
    m_salir->show();
    m_aceptar->setFocus();
}

/// The name of whom was chosen before stays in sight, as it always has.
void FrmHistoricoXEmpleados::vuelve()
{
    m_decision.vuelve();
    m_conEmpleados->hide();
    (m_quien->isEnabled() ? m_uno : m_detallado)->setFocus();
}

} // namespace kestrane
