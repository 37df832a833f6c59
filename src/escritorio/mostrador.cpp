#include "escritorio/mostrador.h"

#include "dialogs/formas_de_orden.h"
#include "dialogs/fr_clientes_perdidos.h"
#include "dialogs/frm_fechas.h"
#include "dialogs/frm_filtros_productos.h"
#include "dialogs/frm_historico_x_clientes.h"
#include "dialogs/frm_historico_x_empleados.h"
#include "dialogs/frm_meses.h"
#include "dialogs/frm_productos_vendidos.h"
#include "dialogs/frm_sel_tienda.h"
#include "platform/report/export/exportacion.h"

namespace kestrane::escritorio {

Mostrador::Mostrador(const PiezasMostrador& piezas)
    : m_menu{{.contexto = piezas.contexto,
              .aspecto = piezas.aspecto,
              .preferencias = piezas.preferencias,
              .reloj = piezas.reloj,
              .mensajes = m_mensajes,
              .ObtenerList1 = piezas.ObtenerList1,
              .pulsa = [this](const catalogue::FilaCatalogo& fila) { m_ejecutor.ejecuta(fila); },
              .termina = piezas.termina}}
    , m_progreso{piezas.contexto, piezas.aspecto, &m_menu}
    , m_espera{piezas.contexto, piezas.aspecto, piezas.tics, &m_menu}
    , m_vistas{{.impresion = &m_impresion}}
    , m_report{m_vistas, abreDocumento(piezas.contexto.ConexionListados.entorno(), report::exporta)}
    , m_salida{piezas.contexto, {m_report, m_impresoras, m_espera, m_mensajes, m_eventos}}
    , m_ejecutor{piezas.contexto, {m_menu, m_dialogos, m_progreso, m_salida, m_mensajes}, piezas.reloj}
{
    ofreceDialogos({piezas.contexto, piezas.aspecto, piezas.reloj, m_mensajes, &m_menu});
}

void Mostrador::ofreceDialogos(const ServiciosDialogo& servicios)
{
    m_dialogos.ofrece(Dialogo::EtiquetasClientes, [this](const QString&) { m_menu.tomaEtiquetas(); });
    m_dialogos.ofrece(Dialogo::Fechas, [servicios](const QString& titulo) {
        muestraModal<FrmFechas>(servicios, PreparacionFechas{.ConFormatos = false, .Titulo = titulo});
    });
    m_dialogos.ofrece(Dialogo::FechasConFormatos, [servicios](const QString& titulo) {
        muestraModal<FrmFechas>(servicios, PreparacionFechas{.ConFormatos = true, .Titulo = titulo});
    });
    const auto ofrece = [&]<class Forma>(Dialogo dialogo, std::type_identity<Forma>) {
        m_dialogos.ofrece(dialogo, [servicios](const QString&) { muestraModal<Forma>(servicios); });
    };
    ofrece(Dialogo::ClientesPerdidos, std::type_identity<FrClientesPerdidos>{});
    ofrece(Dialogo::FiltrosProductos, std::type_identity<FrmFiltrosProductos>{});
    ofrece(Dialogo::HistoricoXClientes, std::type_identity<FrmHistoricoXClientes>{});
    ofrece(Dialogo::HistoricoXEmpleados, std::type_identity<FrmHistoricoXEmpleados>{});
    ofrece(Dialogo::Meses, std::type_identity<FrmMeses>{});
    ofrece(Dialogo::OrdenClientes, std::type_identity<FrmOrdenClientes>{});
    ofrece(Dialogo::OrdenServicios, std::type_identity<FrmOrdenServicios>{});
    ofrece(Dialogo::ProductosVendidos, std::type_identity<FrmProductosVendidos>{});
    ofrece(Dialogo::SelTienda, std::type_identity<FrmSelTienda>{});
}

} // namespace kestrane::escritorio
