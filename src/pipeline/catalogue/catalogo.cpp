#include "pipeline/catalogue/catalogo.h"

#include "listings/listado_empleados.h"
#include "listings/listados_articulos.h"
#include "listings/listados_maestros.h"
#include "listings/listados_servicios.h"
#include "pipeline/catalogue/condiciones.h"
#include "pipeline/catalogue/pasos.h"

namespace kestrane::catalogue {

namespace {

constexpr Marcas SinMarcas{};
constexpr Marcas Hoy = Marca::Hoy;
constexpr Marcas Select = Marca::Select;
constexpr Marcas Bucle = Marca::Bucle;

constexpr CadenaDialogos SinDialogo{};

constexpr CadenaDialogos dialogo(Dialogo unico)
{
    return {.dialogos = {unico}, .cuantos = 1};
}

constexpr CadenaDialogos F = dialogo(Dialogo::Fechas);
constexpr CadenaDialogos FConFormatos = dialogo(Dialogo::FechasConFormatos);
constexpr CadenaDialogos FYProductosVendidos{.dialogos = {Dialogo::Fechas, Dialogo::ProductosVendidos}, .cuantos = 2};
constexpr CadenaDialogos BuscarEHistorico{
    .dialogos = {Dialogo::Buscar, Dialogo::HistoricoXClientes}, .cuantos = 2, .trasElPrimero = tomaClienteBuscado};

constexpr Constructores de(QStringView nombre, Constructor constructor = nullptr)
{
    return {{{nombre, constructor}}};
}

constexpr Constructores PorProductos{
    {{u"ListadoPorProductos", nullptr, esDeAlimentacionYPerfume}, {u"ListadoPorProductosTallaColor"}}};
constexpr Constructores HistoricoEmpleados{
    {{u"ListadoHistoricoEmpleadosSeleccion", nullptr, totalizado}, {u"ListadoHistoricoEmpleadosTodos"}}};
constexpr Constructores Productos{{{u"ListadoProductosTallaColor", nullptr, esDeTallaYColor}, {u"ListadoProductosGeneral"}}};
constexpr Constructores Factura{{{u"ListadoFactura", nullptr, reimprimeFactura}}};

constexpr Disenos en(QStringView fichero)
{
    return {{{fichero}}};
}

constexpr Disenos porComercio(QStringView comercio, QStringView base)
{
    return {{{comercio, ImpresoraDe::Listados, esComercio}, {base}}};
}

constexpr Disenos porTicket(QStringView ticket, QStringView folio)
{
    return {{{ticket, ImpresoraDe::Ticket, enTicket}, {folio}}};
}

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
constexpr Disenos Stock = porComercio(u"T_EntradaStock.rpt", u"K_EntradaStock.rpt");

constexpr FilaCatalogo informe(QStringView control, QStringView leyenda, const CadenaDialogos& dialogos,
                               const Constructores& constructores, const Disenos& disenos, Marcas marcas = SinMarcas)
{
    FilaCatalogo fila{.clase = Clase::Informe, .control = control, .leyenda = leyenda};
    fila.dialogos = dialogos;
    fila.constructores = constructores;
    fila.disenos = disenos;
    fila.marcas = marcas;
    return fila;
}

/// The row with what its button sets before the dialogs.
constexpr FilaCatalogo tras(void (*preparacion)(ContextoEjecucion&), FilaCatalogo fila)
{
    fila.preparacion = preparacion;
    return fila;
}

/// The row with a text of its own for frmFechas.
constexpr FilaCatalogo titulado(QStringView titulo, FilaCatalogo fila)
{
    fila.titulo = titulo;
    return fila;
}

constexpr FilaCatalogo grafico(QStringView control, QStringView leyenda, const CadenaDialogos& dialogos, QStringView nombre,
                               Marcas marcas)
{
    FilaCatalogo fila{.clase = Clase::Grafico, .control = control, .leyenda = leyenda};
    fila.dialogos = dialogos;
    fila.grafico = nombre;
    fila.marcas = marcas;
    return fila;
}

constexpr FilaCatalogo accion(QStringView control, QStringView leyenda, const Acciones& acciones)
{
    FilaCatalogo fila{.clase = Clase::Accion, .control = control, .leyenda = leyenda};
    fila.acciones = acciones;
    return fila;
}

constexpr FilaCatalogo sinAccion(QStringView control, QStringView leyenda)
{
    return {.clase = Clase::SinAccion, .control = control, .leyenda = leyenda};
}

constexpr Acciones hace(AccionMenu accion)
{
    return {{{accion, nullptr, true}}};
}

constexpr Acciones EtiquetasDeProductos{
    {{AccionMenu::EtiquetasDeProductosTPV, esDeAlimentacionYPerfume, true}, {AccionMenu::EtiquetasDeProductos, nullptr, true}}};

// "Por Pack Servicios" shows the caption of "Por Servicios" on its format labels, as it always did.
constexpr FilaCatalogo Filas[] = {
    informe(u"cmd_Caja1", u"Caja Diaria General", F, de(u"ListadoCajaDiaria"),
            porComercio(u"T_caja_diariageneral2.rpt", u"K_caja_diariageneral2.rpt"), Hoy | Bucle),
    informe(u"cmdCajaDiariaResumido", u"Caja Diaria General Resumido", F, de(u"ListadoCajaDiaria"),
            porComercio(u"T_caja_diariaResumido.rpt", u"K_caja_diariaResumido.rpt"), Hoy | Bucle),
    informe(u"cmd_Caja3", u"Caja General por Empleados", FConFormatos, de(u"ListadoCajaGeneral"), CajaGeneral, Hoy | Bucle),
    informe(u"cmd_Caja4", u"Caja Diaria Formato Ticket", F, de(u"ListadoCajaTickets"), CajaTickets, Hoy | Bucle),
    tras(prepararReimpresion,
         informe(u"cmd_Caja5", u"Re-Impresion de Facturas", dialogo(Dialogo::ReImprimir), Factura, en(u"K_factura.rpt"), Select)),

    informe(u"cmd_Ventas1", u"Por Servicios", FConFormatos, de(u"ListadoPorServicios"),
            porTicket(u"K_porservicios_ticket.rpt", u"K_porservicios.rpt"), Bucle),
    informe(u"cmd_Ventas2", u"Formas de Pago", F, de(u"ListadoFormasPagoVentas"), en(u"K_formapago.rpt"), Bucle),
    tras(buscaClientes,
         informe(u"cmd_Ventas3", u"Hist. X Clientes", BuscarEHistorico, de(u"ListadoHistoricoClientes"),
                 porComercio(u"T_Listado_Historico.rpt", u"K_Listado_Historico.rpt"), Bucle | Marca::SinFiltroAceptado)),
    titulado(u"Por Servicios", informe(u"cmd_Ventas4", u"Por Pack Servicios", FConFormatos, de(u"ListadoPorPackSpa"),
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
    informe(u"cmdAlbaranes", u"Ventas modo Albaran", F, de(u"ListadoAlbaranes"), Albaranes, Hoy),

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
    informe(u"cmd_Colores", u"Colores", SinDialogo, de(u"ListadoColores", ListadoColores), en(u"TC_colores.rpt")),
    informe(u"cmd_Marcas", u"Marcas", SinDialogo, de(u"ListadoMarcas", ListadoMarcas), en(u"TC_Marcas.rpt")),
    informe(u"cmd_Tallas", u"Tallas", SinDialogo, de(u"ListadoTallas", ListadoTallas), en(u"TC_Tallas.rpt")),
    informe(u"cmd_Talleres", u"Talleres", SinDialogo, de(u"ListadoTalleres", ListadoTalleres), en(u"TC_Talleres.rpt")),
    informe(u"cmd_Arreglos", u"Arreglos", SinDialogo, de(u"ListadoArreglos", ListadoArreglos), en(u"TC_Arreglos.rpt")),

    informe(u"cmd_AgendaPendientes", u"Citas Pendientes", F, de(u"ListadoAgenda"), en(u"K_Agenda.rpt"), Bucle),
    informe(u"cmd_AgendaAnuladas", u"Citas Anuladas", F, de(u"ListadoAgenda"), en(u"K_Agenda.rpt"), Bucle),
    informe(u"cmd_AgendasAusentes", u"Citas Ausentes", F, de(u"ListadoAgenda"), en(u"K_Agenda.rpt"), Bucle),

    informe(u"Command22", u"Bonos Caducados", SinDialogo, de(u"ListadoBonos"), en(u"K_Bonos.rpt"),
            Select | Bucle | Marca::ConAviso),
    informe(u"Command23", u"Bonos Activos", SinDialogo, de(u"ListadoBonos"), en(u"K_Bonos.rpt"), Select | Bucle),

    informe(u"Command18", u"Entrada de Productos", F, de(u"ListadoStockEntradas"), Stock),
    informe(u"Command17", u"Ventas", F, de(u"ListadoStockVentas"), Stock),
    informe(u"Command16", u"Devoluciones de Ventas", F, de(u"ListadoStockDevolucionesVentas"), Stock),
    informe(u"Command15", u"Regularizaciones", F, de(u"ListadoStockRegularizaciones"), Stock),
    informe(u"Command14", u"Inventarios", F, de(u"ListadoStockInventarios"), Stock),
    informe(u"Command13", u"Devoluciones a Proveedor", F, de(u"ListadoStockDevolucionesProveedor"), Stock),
    informe(u"Command12", u"Traspasos a Consumo Interno", F, de(u"ListadoStockConsumoInterno"), Stock),
    informe(u"Command11", u"Devoluciones de Consumo Interno a Almacen", F, de(u"ListadoStockConsumoInterno"), Stock),
    informe(u"Command19", u"Baja de Productos de Consumo Interno", F, de(u"ListadoStockConsumoInterno"), Stock),

    grafico(u"Command2", u"Ventas por horas", F, u"facturacionXHoras", Bucle),
    grafico(u"Command4", u"Numero visitas x mes", SinDialogo, u"VisitasXMes", Select | Bucle),
    grafico(u"Command5", u"Por Secciones", F, u"porSecciones", Bucle),
    grafico(u"Command6", u"Facturacion Anual", SinDialogo, u"FacturacionAnual", Select | Bucle),
    grafico(u"Command7", u"Facturacion Mensual", dialogo(Dialogo::Meses), u"FacturacionMensual", Bucle),
    grafico(u"Command8", u"Por Empleados", F, u"porEmpleado", Bucle),
    grafico(u"Command9", u"Formas de Pago", F, u"formapago", Bucle),

    accion(u"cmd_Ayuda", u"", hace(AccionMenu::Ayuda)),
    accion(u"cmd_Salir", u"Salir", hace(AccionMenu::Salir)),
    sinAccion(u"cmdListados", u"Listados anteriores a la migracion"),
    sinAccion(u"Command1", u"Cuadricula"),
    sinAccion(u"Command3", u""),
};

} // namespace

std::span<const FilaCatalogo> catalogo()
{
    return Filas;
}

const FilaCatalogo* busca(QStringView control)
{
    for (const FilaCatalogo& fila : Filas) {
        if (fila.control.compare(control, Qt::CaseInsensitive) == 0)
            return &fila;
    }
    return nullptr;
}

QStringView constructorQueFalta(const FilaCatalogo& fila)
{
    for (const OpcionConstructor& opcion : fila.constructores) {
        if (opcion.presente() && !opcion.constructor)
            return opcion.nombre;
    }
    return {};
}

} // namespace kestrane::catalogue
