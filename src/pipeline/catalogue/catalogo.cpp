#include "pipeline/catalogue/catalogo.h"

#include "cash/listado_albaranes.h"
#include "cash/listado_caja_diaria.h"
#include "cash/listado_caja_general.h"
#include "cash/listado_caja_tickets.h"
#include "cash/listado_formas_pago_ventas.h"
#include "cash/listado_por_servicios.h"
#include "listings/listado_empleados.h"
#include "listings/listados_articulos.h"
#include "listings/listados_maestros.h"
#include "listings/listados_servicios.h"
#include "pipeline/catalogue/filas.h"
#include "pipeline/catalogue/pasos.h"

namespace kestrane::catalogue {

namespace {

constexpr Marcas Hoy = Marca::Hoy;
constexpr Marcas Select = Marca::Select;
constexpr Marcas Bucle = Marca::Bucle;

constexpr CadenaDialogos SinDialogo{};
constexpr CadenaDialogos F = dialogo(Dialogo::Fechas);
constexpr CadenaDialogos FConFormatos = dialogo(Dialogo::FechasConFormatos);
constexpr CadenaDialogos FYProductosVendidos = dosDialogos(Dialogo::Fechas, Dialogo::ProductosVendidos);
constexpr CadenaDialogos BuscarEHistorico = dosDialogos(Dialogo::Buscar, Dialogo::HistoricoXClientes, tomaClienteBuscado);

constexpr Constructores PorProductos{
    {{u"ListadoPorProductos", nullptr, esDeAlimentacionYPerfume}, {u"ListadoPorProductosTallaColor"}}};
constexpr Constructores HistoricoEmpleados{
    {{u"ListadoHistoricoEmpleadosSeleccion", nullptr, totalizado}, {u"ListadoHistoricoEmpleadosTodos"}}};
constexpr Constructores Productos{{{u"ListadoProductosTallaColor", nullptr, esDeTallaYColor}, {u"ListadoProductosGeneral"}}};
constexpr Constructores Factura{{{u"ListadoFactura", nullptr, reimprimeFactura}}};

constexpr Disenos CajaGeneral{{{u"T_caja_general_ticket.rpt", ImpresoraDe::Ticket, enTicketDeComercio},
                               {u"K_caja_general_ticket.rpt", ImpresoraDe::Ticket, enTicket},
                               {u"K_caja_general.rpt"}}};
constexpr Disenos CajaTickets{{{u"K_caja_tickets.rpt", ImpresoraDe::Ticket}}};
constexpr Disenos DePorProductos{{{u"K_porproductos_ticket.rpt", ImpresoraDe::Ticket, enTicket},
                                  {u"TC_porproductos.rpt", ImpresoraDe::Listados, esDeTallaYColor},
                                  {u"K_porproductos_S.rpt", ImpresoraDe::Listados, esDeAlimentacionYPerfume},
                                  {u"K_porproductos.rpt"}}};
constexpr Disenos DeHistoricoEmpleados{{{u"K_ListadoHisXEmp1.rpt", ImpresoraDe::Listados, totalizadoDeTodos},
                                        {u"K_ListadoHisXEmp2.rpt", ImpresoraDe::Listados, totalizado},
                                        {u"K_ListadoHisXEmp3.rpt"}}};
constexpr Disenos Albaranes{{{u"T_Albaranes.rpt", ImpresoraDe::Listados, esComercio}}};
constexpr Disenos DeStock = porComercio(u"T_EntradaStock.rpt", u"K_EntradaStock.rpt");

constexpr Acciones EtiquetasDeProductos{
    {{AccionMenu::EtiquetasDeProductosTPV, esDeAlimentacionYPerfume, true}, {AccionMenu::EtiquetasDeProductos, nullptr, true}}};

constexpr std::array Caja{
    informe(u"cmd_Caja1", u"Caja Diaria General", F, de(u"ListadoCajaDiaria", ListadoCajaDiaria),
            porComercio(u"T_caja_diariageneral2.rpt", u"K_caja_diariageneral2.rpt"), Hoy | Bucle),
    informe(u"cmdCajaDiariaResumido", u"Caja Diaria General Resumido", F, de(u"ListadoCajaDiaria", ListadoCajaDiaria),
            porComercio(u"T_caja_diariaResumido.rpt", u"K_caja_diariaResumido.rpt"), Hoy | Bucle),
    informe(u"cmd_Caja3", u"Caja General por Empleados", FConFormatos, de(u"ListadoCajaGeneral", ListadoCajaGeneral), CajaGeneral,
            Hoy | Bucle),
    informe(u"cmd_Caja4", u"Caja Diaria Formato Ticket", F, de(u"ListadoCajaTickets", ListadoCajaTickets), CajaTickets,
            Hoy | Bucle),
    tras(prepararReimpresion,
         informe(u"cmd_Caja5", u"Re-Impresion de Facturas", dialogo(Dialogo::ReImprimir), Factura, en(u"K_factura.rpt"), Select)),
};

constexpr std::array Ventas{
    informe(u"cmd_Ventas1", u"Por Servicios", FConFormatos, de(u"ListadoPorServicios", ListadoPorServicios),
            porTicket(u"K_porservicios_ticket.rpt", u"K_porservicios.rpt"), Bucle),
    informe(u"cmd_Ventas2", u"Formas de Pago", F, de(u"ListadoFormasPagoVentas", ListadoFormasPagoVentas), en(u"K_formapago.rpt"),
            Bucle),
    tras(buscaClientes,
         informe(u"cmd_Ventas3", u"Hist. X Clientes", BuscarEHistorico, de(u"ListadoHistoricoClientes"),
                 porComercio(u"T_Listado_Historico.rpt", u"K_Listado_Historico.rpt"), Bucle | Marca::SinFiltroAceptado)),
    // Shows the caption of "Por Servicios" on its format labels, as it always did.
    conTituloDe(u"cmd_Ventas1", informe(u"cmd_Ventas4", u"Por Pack Servicios", FConFormatos, de(u"ListadoPorPackSpa"),
                                        porTicket(u"K_porPackSpa_ticket.rpt", u"K_porPackSpa.rpt"))),
    informe(u"cmd_Ventas5", u"Por Productos", FConFormatos, PorProductos, DePorProductos, Bucle),
    informe(u"cmd_Ventas6", u"Hist. X Empleados", dialogo(Dialogo::HistoricoXEmpleados), HistoricoEmpleados, DeHistoricoEmpleados,
            Bucle),
    informe(u"cmd_Ventas7", u"Impuestos", F, de(u"ListadoImpuestos"), en(u"K_IVA.rpt"), Bucle),
    informe(u"cmd_Ventas8", u"Por Secciones", F, de(u"ListadoPorSecciones"), en(u"K_Seccion2.rpt"), Bucle),
    informe(u"cmd_Ventas9", u"Pendientes de Pago", SinDialogo, de(u"ListadoPagosACuenta"), en(u"K_pagosacuenta.rpt"),
            Select | Bucle),
    informe(u"cmd_Ventas10", u"Por Facturas/Horas", F, de(u"ListadoTickets"), en(u"K_Listado_tickets.rpt"), Bucle),
    informe(u"cmd_Ventas11", u"Productos Vendidos", FYProductosVendidos, de(u"ListadoProductosVendidos"),
            en(u"K_productosstock.rpt"), Bucle),
    informe(u"cmd_Ventas12", u"Caja Totales por Día", F, de(u"ListadoTotalesPorDia"), en(u"K_TotalesXDia.rpt"), Bucle),
    informe(u"cmd_Ventas20", u"Por Arreglos", F, de(u"ListadoPorArreglos"), en(u"K_porArreglos.rpt")),
    informe(u"cmdAlbaranes", u"Ventas modo Albaran", F, de(u"ListadoAlbaranes", ListadoAlbaranes), Albaranes, Hoy),
};

constexpr std::array Estadisticas{
    informe(u"cmd_Estadisticas1", u"Descuentos Realizados", F, de(u"ListadoDescuentos"), en(u"K_DescuentosRealizados.rpt"), Bucle),
    informe(u"cmd_Estadisticas2", u"Por Gastos", F, de(u"ListadoGastos"), en(u"K_Gastos.rpt"), Bucle),
    informe(u"cmd_Estadisticas3", u"Ocupacion por Horas", F, de(u"ListadoOcupacionHoras"), en(u"K_OcupacionXHoras.rpt"), Bucle),
    informe(u"cmd_Estadisticas4", u"Clientes Perdidos", dialogo(Dialogo::ClientesPerdidos), de(u"ListadoClientesPerdidos"),
            en(u"K_ClientesPerdidos.rpt"), Bucle),
    informe(u"cmd_Estadisticas5", u"Ranking por Facturacion", F, de(u"ListadoRanking"),
            porComercio(u"T_RankingFacturacion.rpt", u"K_RankingFacturacion.rpt"), Bucle),
    sinAccion(u"cmd_Estadisticas6", u"Fidelizacion"),
    informe(u"cmd_Estadisticas7", u"Ranking por Visitas", F, de(u"ListadoRanking"),
            porComercio(u"T_RankingVisitas.rpt", u"K_RankingVisitas.rpt"), Bucle),
    informe(u"cmd_Estadisticas8", u"Visitas X Seccion", F, de(u"ListadoPorSecciones"), en(u"K_VisitasXSeccion.rpt"), Bucle),
};

constexpr std::array Generales{
    tras(prepararClientes, informe(u"cmd_Generales1", u"Clientes", dialogo(Dialogo::OrdenClientes), de(u"ListadoClientes"),
                                   en(u"K_Clientes.rpt"), Select | Bucle)),
    tras(prepararCumpleanios, titulado(u"Clientes que cumplen años", informe(u"cmd_Generales13", u"Cumpleaños", F,
                                                                             de(u"ListadoClientes"), en(u"K_Clientes.rpt")))),
    tras(prepararDineroEnDeposito, informe(u"cmd_GeneralesCliDinDep", u"Clientes con Dinero en Deposito", SinDialogo,
                                           de(u"ListadoClientesDineroDeposito"), en(u"K_ClientesDineroDeposito.rpt"), Select)),
    tras(prepararProductos,
         informe(u"cmd_Generales2", u"Productos", dialogo(Dialogo::FiltrosProductos), Productos, en(u"K_Productos.rpt"))),
    tras(prepararBajoMinimos, informe(u"cmd_Generales14", u"Productos Bajo Minimos", dialogo(Dialogo::FiltrosProductos), Productos,
                                      en(u"K_Productos.rpt"))),
    informe(u"cmd_Generales3", u"Empleados", SinDialogo, de(u"ListadoEmpleados", ListadoEmpleados), en(u"K_Empleados.rpt")),
    informe(u"cmd_Generales4", u"Servicios", dialogo(Dialogo::OrdenServicios), de(u"ListadoServicios", ListadoServicios),
            en(u"K_Servicios.rpt")),
    informe(u"cmd_Generales5", u"Pack Spa", SinDialogo, de(u"ListadoPackSpa", ListadoPackSpa), en(u"K_PackSpa.rpt")),
    informe(u"cmd_Generales7", u"Pack Servicios", SinDialogo, de(u"ListadoPackServicios", ListadoPackServicios),
            en(u"K_PackServicios.rpt")),
    informe(u"cmd_Generales8", u"Secciones", SinDialogo, de(u"ListadoSecciones", ListadoSecciones), en(u"K_Secciones.rpt")),
    informe(u"cmd_Generales9", u"Formas de Pago", SinDialogo, de(u"ListadoFormasPago", ListadoFormasPago),
            en(u"K_Formasdepago.rpt")),
    informe(u"cmd_Generales10", u"Proveedores", SinDialogo, de(u"ListadoProveedores", ListadoProveedores),
            en(u"K_Proveedores.rpt")),
    informe(u"cmd_Generales11", u"Retiradas", F, de(u"ListadoRetiradas"), en(u"K_Retiradas.rpt")),
    accion(u"cmd_Generales12", u"Etiquetas de Clientes", hace(AccionMenu::EtiquetasDeClientes)),
    accion(u"cmd_Generales21", u"Carteles", hace(AccionMenu::Carteles)),
    accion(u"cmd_Generales22", u"Etiquetas de Productos", EtiquetasDeProductos),
};

constexpr std::array TallaColor{
    informe(u"cmd_Colores", u"Colores", SinDialogo, de(u"ListadoColores", ListadoColores), en(u"TC_colores.rpt")),
    informe(u"cmd_Marcas", u"Marcas", SinDialogo, de(u"ListadoMarcas", ListadoMarcas), en(u"TC_Marcas.rpt")),
    informe(u"cmd_Tallas", u"Tallas", SinDialogo, de(u"ListadoTallas", ListadoTallas), en(u"TC_Tallas.rpt")),
    informe(u"cmd_Talleres", u"Talleres", SinDialogo, de(u"ListadoTalleres", ListadoTalleres), en(u"TC_Talleres.rpt")),
    informe(u"cmd_Arreglos", u"Arreglos", SinDialogo, de(u"ListadoArreglos", ListadoArreglos), en(u"TC_Arreglos.rpt")),
};

constexpr std::array EtiquetasDeClientes{
    // The button of the panel that "Etiquetas de Clientes" opens.
    informe(u"Command10", u"Continuar", dialogo(Dialogo::EtiquetasClientes), de(u"ListadoEtiquetasClientes"),
            en(u"K_etiquetas.rpt"), Select | Marca::SinFiltroAceptado),
};

constexpr std::array Agendas{
    informe(u"cmd_AgendaPendientes", u"Citas Pendientes", F, con<1>(u"ListadoAgenda"), en(u"K_Agenda.rpt"), Bucle),
    informe(u"cmd_AgendaAnuladas", u"Citas Anuladas", F, con<2>(u"ListadoAgenda"), en(u"K_Agenda.rpt"), Bucle),
    informe(u"cmd_AgendasAusentes", u"Citas Ausentes", F, con<3>(u"ListadoAgenda"), en(u"K_Agenda.rpt"), Bucle),
};

constexpr std::array Bonos{
    informe(u"Command22", u"Bonos Caducados", SinDialogo, con<2>(u"ListadoBonos"), en(u"K_Bonos.rpt"),
            Select | Bucle | Marca::ConAviso),
    informe(u"Command23", u"Bonos Activos", SinDialogo, con<1>(u"ListadoBonos"), en(u"K_Bonos.rpt"), Select | Bucle),
};

constexpr std::array MovimientosDeStock{
    informe(u"Command18", u"Entrada de Productos", F, de(u"ListadoStockEntradas"), DeStock),
    informe(u"Command17", u"Ventas", F, de(u"ListadoStockVentas"), DeStock),
    informe(u"Command16", u"Devoluciones de Ventas", F, de(u"ListadoStockDevolucionesVentas"), DeStock),
    informe(u"Command15", u"Regularizaciones", F, de(u"ListadoStockRegularizaciones"), DeStock),
    informe(u"Command14", u"Inventarios", F, de(u"ListadoStockInventarios"), DeStock),
    informe(u"Command13", u"Devoluciones a Proveedor", F, de(u"ListadoStockDevolucionesProveedor"), DeStock),
    informe(u"Command12", u"Traspasos a Consumo Interno", F, con<1>(u"ListadoStockConsumoInterno"), DeStock),
    informe(u"Command11", u"Devoluciones de Consumo Interno a Almacen", F, con<2>(u"ListadoStockConsumoInterno"), DeStock),
    informe(u"Command19", u"Baja de Productos de Consumo Interno", F, con<3>(u"ListadoStockConsumoInterno"), DeStock),
};

constexpr std::array Graficos{
    grafico(u"Command2", u"Ventas por horas", F, {u"facturacionXHoras"}, Bucle),
    grafico(u"Command4", u"Numero visitas x mes", SinDialogo, {u"VisitasXMes"}, Select | Bucle),
    grafico(u"Command5", u"Por Secciones", F, {u"porSecciones"}, Bucle),
    grafico(u"Command6", u"Facturacion Anual", SinDialogo, {u"FacturacionAnual"}, Select | Bucle),
    grafico(u"Command7", u"Facturacion Mensual", dialogo(Dialogo::Meses), {u"FacturacionMensual"}, Bucle),
    grafico(u"Command8", u"Por Empleados", F, {u"porEmpleado"}, Bucle),
    grafico(u"Command9", u"Formas de Pago", F, {u"formapago"}, Bucle),
};

constexpr std::array FueraDeGrupo{
    accion(u"cmd_Ayuda", u"", hace(AccionMenu::Ayuda)),
    accion(u"cmd_Salir", u"Salir", hace(AccionMenu::Salir)),
    sinAccion(u"cmdListados", u"Listados anteriores a la migracion"),
    sinAccion(u"Command1", u"Cuadricula"),
    sinAccion(u"Command3", u""),
};

constexpr auto Filas =
    juntas(enGrupo(Grupo::Frame1, Caja), enGrupo(Grupo::Frame5, Ventas), enGrupo(Grupo::Frame6, Estadisticas),
           enGrupo(Grupo::Frame3, Generales), enGrupo(Grupo::fr_TallaColor, TallaColor),
           enGrupo(Grupo::frAviso, EtiquetasDeClientes), enGrupo(Grupo::Frame10, Agendas), enGrupo(Grupo::Frame11, Bonos),
           enGrupo(Grupo::Frame9, MovimientosDeStock), enGrupo(Grupo::Frame7, Graficos), FueraDeGrupo);

constexpr GrupoMenu Grupos[] = {
    {Grupo::Frame1, u"Frame1", u"Caja"},
    {Grupo::Frame3, u"Frame3", u"Listados Generales"},
    {Grupo::Frame5, u"Frame5", u"Listados de Ventas"},
    {Grupo::Frame6, u"Frame6", u"Estadisticas"},
    {Grupo::Frame7, u"Frame7", u"Graficos de venta"},
    {Grupo::Frame9, u"Frame9", u"Movimientos de Stock"},
    {Grupo::Frame10, u"Frame10", u"Agendas"},
    {Grupo::Frame11, u"Frame11", u"Bonos"},
    {Grupo::fr_TallaColor, u"fr_TallaColor", u""},
};

} // namespace

std::span<const FilaCatalogo> catalogo()
{
    return Filas;
}

std::span<const GrupoMenu> grupos()
{
    return Grupos;
}

const FilaCatalogo* busca(QStringView control)
{
    for (const FilaCatalogo& fila : Filas) {
        if (fila.control.compare(control, Qt::CaseInsensitive) == 0)
            return &fila;
    }
    return nullptr;
}

QStringView queFalta(const FilaCatalogo& fila)
{
    for (const OpcionConstructor& opcion : fila.constructores) {
        if (opcion.presente() && !opcion.constructor)
            return opcion.nombre;
    }
    return fila.grafico.recolector ? QStringView{} : fila.grafico.nombre;
}

bool estaDisponible(const FilaCatalogo& fila)
{
    return (fila.clase == Clase::Informe || fila.clase == Clase::Grafico) && queFalta(fila).isEmpty();
}

} // namespace kestrane::catalogue
