#include "lote/dialogos_de_lote.h"

#include "lote/peticion_imposible.h"
#include "pipeline/filtros/decision_historico_clientes.h"
#include "pipeline/filtros/decision_historico_empleados.h"
#include "pipeline/filtros/decision_meses.h"
#include "pipeline/filtros/decision_productos_vendidos.h"
#include "pipeline/filtros/ordenes.h"
#include "platform/database/recordset.h"

#include <algorithm>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

/// The columns of a dialog's buttons; an option of its own stands for the one with e-mail.
std::vector<QStringView> columnas(std::span<const Orden> ordenes)
{
    std::vector<QStringView> lista;
    for (const Orden& orden : ordenes) {
        if (!orden.soloConEmail)
            lista.push_back(orden.columna);
    }
    return lista;
}

/// The option of a class of product; that for all when it is none of them.
const OpcionDeClase& opcionDeClase(const QString& clase)
{
    const std::span<const OpcionDeClase> opciones = opcionesDeClase();
    const auto suya = std::ranges::find(opciones, QStringView{clase}, &OpcionDeClase::clase);
    return suya == opciones.end() ? opciones.front() : *suya;
}

/// A dialog that does not take its answers would stay on the screen.
void exigeAceptada(const Aceptacion& aceptacion)
{
    if (aceptacion.paso != Aceptacion::Paso::Aceptada)
        throw PeticionImposible{aceptacion.motivo};
}

DecisionHistoricoClientes::Ventas ventasDe(const QString& solo)
{
    using Ventas = DecisionHistoricoClientes::Ventas;
    if (solo == u"productos")
        return Ventas::Productos;
    return solo == u"servicios" ? Ventas::Servicios : Ventas::Ambos;
}

} // namespace

DialogosDeLote::DialogosDeLote(ContextoEjecucion& contexto, const PedidoInforme& pedido, const Reloj& reloj)
    : m_contexto{contexto}
    , m_respuestas{pedido, reloj}
    , m_reloj{reloj}
{
}

void DialogosDeLote::Muestra(Dialogo dialogo, const QString&)
{
    switch (dialogo) {
    case Dialogo::Fechas:
        return fechas();
    case Dialogo::FechasConFormatos:
        fechas();
        m_contexto.FormatoTicket = m_respuestas.tiene(Respuesta::Ticket);
        return;
    case Dialogo::Buscar:
        return buscar();
    case Dialogo::HistoricoXClientes:
        return historicoXClientes();
    case Dialogo::HistoricoXEmpleados:
        return historicoXEmpleados();
    case Dialogo::FiltrosProductos:
        return filtrosProductos();
    case Dialogo::ProductosVendidos:
        return productosVendidos();
    case Dialogo::OrdenClientes:
        return ordenClientes();
    case Dialogo::OrdenServicios:
        m_contexto.filtros.columnaOrden = m_respuestas.columnaDeOrden(columnas(ordenesDeServicios()));
        return acepta();
    case Dialogo::ClientesPerdidos:
        return clientesPerdidos();
    case Dialogo::Meses:
        return meses();
    case Dialogo::ReImprimir:
        return reImprimir();
    case Dialogo::EtiquetasClientes:
        return etiquetasClientes();
    case Dialogo::SelTienda:
        return; // the store was chosen at the start
    }
}

/// The box is there only with the invoice module, and leaves the value alone while it is not ticked.
void DialogosDeLote::ponCompleta(DecisionDeFiltro& decision)
{
    if (m_contexto.ModuloFacturas && m_respuestas.tiene(Respuesta::Completa))
        decision.completa(true);
}

void DialogosDeLote::fechas()
{
    DecisionFechas decision{m_contexto, false};
    decision.carga();
    ponCompleta(decision);
    exigeAceptada(decision.acepta(false, desde(), hasta()));
}

/// The search finds clients that are not deleted.
void DialogosDeLote::buscar()
{
    const QString codigo = m_respuestas.exigeNumero(Respuesta::Cliente);
    Recordset filas;
    filas.Open(u"Select codigo from Clientes where codigo = %1 and borrar = false"_s.arg(codigo), m_contexto.ConexionTienda);
    if (filas.Eof())
        noOfrece(codigo);
    m_contexto.ClienteBuscado = codigo;
}

void DialogosDeLote::historicoXClientes()
{
    DecisionHistoricoClientes decision{m_contexto};
    decision.carga();
    decision.eligeSeccion(eligeCodigo(Respuesta::Seccion, PanelDe::Secciones));
    const QString solo = decision.preguntaVentas() ? m_respuestas.texto(Respuesta::Solo) : QString{};
    decision.eligeFormato(m_respuestas.tiene(Respuesta::Ticket));
    ponCompleta(decision);
    exigeAceptada(decision.acepta(desde(), hasta(), ventasDe(solo)));
}

void DialogosDeLote::historicoXEmpleados()
{
    DecisionHistoricoEmpleados decision{m_contexto};
    decision.carga();
    decision.eligeEmpleado(eligeCodigo(Respuesta::Empleado, PanelDe::Empleados));
    if (m_respuestas.tiene(Respuesta::Totalizado))
        decision.totaliza();
    else
        decision.detalla();
    decision.eligeFormato(m_respuestas.tiene(Respuesta::Ticket));
    ponCompleta(decision);
    exigeAceptada(decision.acepta(desde(), hasta()));
}

void DialogosDeLote::filtrosProductos()
{
    DecisionFiltrosProductos decision{m_contexto};
    decision.carga();
    // Under the minimum alone the page with the filters is passed over, title and all.
    if (m_contexto.SoloBajoMinimos)
        decision.acepta(BloqueProductos::BajoMinimo);
    else
        eligeProductos(decision);
    m_contexto.filtros.columnaOrden = m_respuestas.columnaDeOrden(columnas(ordenesDeProductos()));
    acepta();
}

/// One block of the page: one choice in it, and its accept button.
void DialogosDeLote::eligeProductos(DecisionFiltrosProductos& decision)
{
    const auto eligeEn = [&](BloqueProductos bloque, Respuesta respuesta, PanelDe panel) {
        decision.elige(bloque, elige(respuesta, panel));
        decision.acepta(bloque);
    };
    if (m_respuestas.tiene(Respuesta::BajoMinimos))
        return eligeEn(BloqueProductos::BajoMinimo, Respuesta::Proveedor, PanelDe::Proveedores);
    if (m_respuestas.tiene(Respuesta::Proveedor))
        return eligeEn(BloqueProductos::Proveedor, Respuesta::Proveedor, PanelDe::Proveedores);
    if (m_respuestas.tiene(Respuesta::Seccion))
        return eligeEn(BloqueProductos::Seccion, Respuesta::Seccion, PanelDe::Secciones);
    decision.eligeClase(opcionDeClase(m_respuestas.texto(Respuesta::Clase)));
    decision.acepta(BloqueProductos::Tipo);
}

void DialogosDeLote::productosVendidos()
{
    DecisionProductosVendidos decision{m_contexto};
    decision.eligeEmpleado(eligeCodigo(Respuesta::Empleado, PanelDe::Empleados));
    decision.eligeProveedor(eligeCodigo(Respuesta::Proveedor, PanelDe::Proveedores));
    decision.acepta();
}

void DialogosDeLote::ordenClientes()
{
    m_contexto.filtros.soloConEmail = m_respuestas.tiene(Respuesta::SoloEmail);
    m_contexto.filtros.columnaOrden =
        m_contexto.filtros.soloConEmail ? u"Nombre"_s : m_respuestas.columnaDeOrden(columnas(ordenesDeClientes()));
    acepta();
}

void DialogosDeLote::clientesPerdidos()
{
    aceptaDesde(m_contexto, desde());
}

void DialogosDeLote::meses()
{
    DecisionMeses decision{m_contexto, m_reloj};
    decision.carga();
    decision.completa(m_respuestas.tiene(Respuesta::Completa)); // here the box stands in every shop
    decision.pon(m_respuestas.numero(Respuesta::Mes, decision.mes()), m_respuestas.numero(Respuesta::Anio, decision.anio()));
    decision.acepta();
}

void DialogosDeLote::reImprimir()
{
    m_contexto.NumeroReimpresion = m_respuestas.exigeNumero(Respuesta::Factura);
    m_contexto.ReimprimirFactura = true;
    acepta();
}

/// The panel as it is opened, before the operator chooses anything: labels for all clients.
void DialogosDeLote::etiquetasClientes()
{
    EtiquetasClientes& etiquetas = m_contexto.filtros.etiquetas;
    etiquetas = {};
    etiquetas.OptGeneral = true;
    etiquetas.desdeCumple = etiquetas.HastaCumple = m_reloj.hoy();
}

void DialogosDeLote::noOfrece(const QString& codigo) const
{
    throw PeticionImposible{u"%1 no ofrece el código %2."_s.arg(m_respuestas.control(), codigo)};
}

ElementoPanel DialogosDeLote::elige(Respuesta respuesta, PanelDe panel)
{
    const qint32 codigo = m_respuestas.numero(respuesta, CodigoDeTodos);
    if (codigo == CodigoDeTodos)
        return elementoDeTodos(panel);
    const ArrayPanel elementos = cargaPanel(m_contexto, panel, BotonDeTodos::Con, {});
    const int ultimo = elementos.reservado() ? elementos.limiteSuperior() : 0;
    for (int lugar = 1; lugar <= ultimo; ++lugar) {
        if (codigoDe(elementos[lugar]) == codigo)
            return elementos[lugar];
    }
    noOfrece(QString::number(codigo));
}

} // namespace kestrane::lote
