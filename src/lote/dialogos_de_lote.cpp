#include "lote/dialogos_de_lote.h"

#include "lote/peticion_imposible.h"
#include "pipeline/filtros/ordenes.h"
#include "pipeline/filtros/utilidades.h"
#include "pipeline/sabores.h"
#include "platform/database/recordset.h"

namespace kestrane::lote {

using namespace Qt::StringLiterals;

/// The buttons of a panel: the rows that fill it, and what its button for all of them reads.
struct DialogosDeLote::Panel
{
    QStringView sentencia;
    QStringView todos;
};

namespace {

constexpr qint32 Todos = -1; // the code of that button

constexpr DialogosDeLote::Panel PanelEmpleados{u"Select codigo,nombre,apellidos,imagen,color,emp_color from empleados where baja= "
                                               u"false and mostrar_caja = -1 order by posicion",
                                               u"Todos los Empleados"};
constexpr DialogosDeLote::Panel PanelProveedores{u"Select * from Proveedores where Borrar=false order by posicion",
                                                 u"Todos los Proveedores"};
constexpr DialogosDeLote::Panel PanelSecciones{u"Select * from Seccion where Borrar=false order by posicion",
                                               u"Todas las Secciones"};

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

QString tituloDeClase(const QString& clase)
{
    if (clase == u"V")
        return u"LISTADO X TIPO DE PRODUCTOS = Productos de Venta"_s;
    if (clase == u"CI")
        return u"LISTADO X TIPO DE PRODUCTOS = Productos de Consumo Interno"_s;
    return clase == u"A" ? u"LISTADO X TIPO DE PRODUCTOS = Ambos"_s : u"LISTADO X TIPO DE PRODUCTOS = Todos"_s;
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

void DialogosDeLote::ponPeriodo()
{
    const Fecha desde = m_respuestas.dia(Respuesta::Desde);
    const Fecha hasta = m_respuestas.dia(Respuesta::Hasta);
    if (const QString motivo = Utilidades::ComprobarFechas(desde, hasta); !motivo.isEmpty())
        throw PeticionImposible{motivo};
    m_contexto.FechaDesde = desde;
    m_contexto.FechaHasta = hasta;
}

/// The box is there only with the invoice module, and leaves the value alone while it is not ticked.
void DialogosDeLote::ponCompleta()
{
    if (m_contexto.ModuloFacturas && m_respuestas.tiene(Respuesta::Completa))
        m_contexto.CajaCompleta = true;
}

void DialogosDeLote::fechas()
{
    m_contexto.FormatoTicket = false;
    m_contexto.CajaCompleta = false;
    ponCompleta();
    ponPeriodo();
    acepta();
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
    Filtros& filtros = m_contexto.filtros;
    filtros.seccion = elige(Respuesta::Seccion, PanelSecciones).codigo;
    filtros.todasLasSecciones = filtros.seccion == -1;
    const bool soloHayProductos = esDeAlimentacionYPerfume(m_contexto.TipoPrograma);
    const QString solo = soloHayProductos ? u"productos"_s : m_respuestas.texto(Respuesta::Solo);
    filtros.soloProductos = solo == u"productos";
    filtros.soloServicios = solo == u"servicios";
    m_contexto.FormatoTicket = m_respuestas.tiene(Respuesta::Ticket);
    ponCompleta();
    ponPeriodo();
    acepta();
}

void DialogosDeLote::historicoXEmpleados()
{
    m_contexto.CajaCompleta = false;
    m_contexto.filtros.empleado = elige(Respuesta::Empleado, PanelEmpleados).codigo;
    m_contexto.filtros.totalizado = m_respuestas.tiene(Respuesta::Totalizado);
    m_contexto.FormatoTicket = m_respuestas.tiene(Respuesta::Ticket);
    ponCompleta();
    ponPeriodo();
    acepta();
}

void DialogosDeLote::filtrosProductos()
{
    Filtros& filtros = m_contexto.filtros;
    filtros.seccion = filtros.proveedor = filtros.proveedorBajoMinimos = -1;
    filtros.claseProducto.clear();
    // Under the minimum alone the page with the filters is passed over, title and all.
    if (m_contexto.SoloBajoMinimos)
        filtros.bajoMinimos = true;
    else if (m_respuestas.tiene(Respuesta::BajoMinimos))
        eligeBajoMinimos();
    else
        eligeProductos();
    filtros.columnaOrden = m_respuestas.columnaDeOrden(columnas(ordenesDeProductos()));
    acepta();
}

void DialogosDeLote::eligeBajoMinimos()
{
    Filtros& filtros = m_contexto.filtros;
    filtros.bajoMinimos = true;
    const Eleccion proveedor = elige(Respuesta::Proveedor, PanelProveedores);
    filtros.proveedorBajoMinimos = proveedor.codigo;
    filtros.titulo = u"LISTADO DE PRODUCTOS BAJO MINIMOX Proveedor = "_s + proveedor.nombre;
}

/// One block of the page: the last one that the operator accepts clears the others.
void DialogosDeLote::eligeProductos()
{
    Filtros& filtros = m_contexto.filtros;
    filtros.bajoMinimos = false;
    if (m_respuestas.tiene(Respuesta::Proveedor)) {
        const Eleccion proveedor = elige(Respuesta::Proveedor, PanelProveedores);
        filtros.proveedor = proveedor.codigo;
        filtros.titulo = u"LISTADO DE PRODUCTOS X PROVEEDOR = "_s + proveedor.nombre;
        return;
    }
    if (m_respuestas.tiene(Respuesta::Seccion)) {
        const Eleccion seccion = elige(Respuesta::Seccion, PanelSecciones);
        filtros.seccion = seccion.codigo;
        filtros.titulo = u"LISTADO DE PRODUCTOS X SECCIONES = "_s + seccion.nombre;
        return;
    }
    filtros.claseProducto = m_respuestas.texto(Respuesta::Clase);
    filtros.titulo = tituloDeClase(filtros.claseProducto);
}

void DialogosDeLote::productosVendidos()
{
    m_contexto.filtros.empleado = elige(Respuesta::Empleado, PanelEmpleados).codigo;
    m_contexto.filtros.proveedor = elige(Respuesta::Proveedor, PanelProveedores).codigo;
    acepta();
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
    m_contexto.FechaDesde = m_respuestas.dia(Respuesta::Desde);
    acepta();
}

void DialogosDeLote::meses()
{
    m_contexto.CajaCompleta = m_respuestas.tiene(Respuesta::Completa); // here the box stands in every shop
    m_contexto.filtros.mes = static_cast<qint16>(m_respuestas.numero(Respuesta::Mes, m_reloj.hoy().mes()));
    m_contexto.filtros.anio = static_cast<qint16>(m_respuestas.numero(Respuesta::Anio, m_reloj.hoy().anio()));
    acepta();
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

DialogosDeLote::Eleccion DialogosDeLote::elige(Respuesta respuesta, const Panel& panel)
{
    const qint32 codigo = m_respuestas.numero(respuesta, Todos);
    if (codigo == Todos)
        return {Todos, panel.todos.toString()};
    Recordset filas;
    filas.Open(panel.sentencia.toString(), m_contexto.ConexionTienda);
    for (Recordset& fila : filas) {
        const Valor suyo = fila.Fields(u"codigo");
        const Valor nombre = fila.Fields(u"nombre");
        if (!suyo.esNulo() && suyo.entero32() == codigo)
            return {codigo, nombre.esNulo() ? QString{} : nombre.texto()};
    }
    noOfrece(QString::number(codigo));
}

} // namespace kestrane::lote
