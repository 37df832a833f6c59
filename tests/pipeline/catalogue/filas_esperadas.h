#pragma once

#include <QStringView>

/// What the rows of the catalogue must hold.
namespace kestrane::prueba {

/// Choices stand in their order, each with "?" and the name of the condition under which it counts.
struct FilaEsperada
{
    QStringView control;
    QStringView leyenda;
    QStringView dialogos;
    QStringView constructores; ///< "Listado(1)" is called with 1
    QStringView disenos;       ///< "!" goes to the ticket printer
    QStringView marcas;
};

inline constexpr FilaEsperada Informes[] = {
    {u"cmd_Caja1", u"Caja Diaria General", u"frmFechas", u"ListadoCajaDiaria",
     u"T_caja_diariageneral2.rpt?comercio K_caja_diariageneral2.rpt", u"Hoy Bucle"},
    {u"cmdCajaDiariaResumido", u"Caja Diaria General Resumido", u"frmFechas", u"ListadoCajaDiaria",
     u"T_caja_diariaResumido.rpt?comercio K_caja_diariaResumido.rpt", u"Hoy Bucle"},
    {u"cmd_Caja3", u"Caja General por Empleados", u"frmFechas+", u"ListadoCajaGeneral",
     u"T_caja_general_ticket.rpt!?ticket+comercio K_caja_general_ticket.rpt!?ticket K_caja_general.rpt", u"Hoy Bucle"},
    {u"cmd_Caja4", u"Caja Diaria Formato Ticket", u"frmFechas", u"ListadoCajaTickets", u"K_caja_tickets.rpt!", u"Hoy Bucle"},
    {u"cmd_Caja5", u"Re-Impresion de Facturas", u"frmReImprimir", u"ListadoFactura?factura", u"K_factura.rpt", u"Select"},
    {u"cmd_Ventas1", u"Por Servicios", u"frmFechas+", u"ListadoPorServicios",
     u"K_porservicios_ticket.rpt!?ticket K_porservicios.rpt", u"Bucle"},
    {u"cmd_Ventas2", u"Formas de Pago", u"frmFechas", u"ListadoFormasPagoVentas", u"K_formapago.rpt", u"Bucle"},
    {u"cmd_Ventas3", u"Hist. X Clientes", u"frmBuscar frmHistoricoXClientes", u"ListadoHistoricoClientes",
     u"T_Listado_Historico.rpt?comercio K_Listado_Historico.rpt", u"Bucle SinFiltroAceptado"},
    {u"cmd_Ventas4", u"Por Pack Servicios", u"frmFechas+", u"ListadoPorPackSpa",
     u"K_porPackSpa_ticket.rpt!?ticket K_porPackSpa.rpt", u""},
    {u"cmd_Ventas5", u"Por Productos", u"frmFechas+", u"ListadoPorProductos?alimentacion ListadoPorProductosTallaColor",
     u"K_porproductos_ticket.rpt!?ticket TC_porproductos.rpt?tallacolor K_porproductos_S.rpt?alimentacion K_porproductos.rpt",
     u"Bucle"},
    {u"cmd_Ventas6", u"Hist. X Empleados", u"frmHistoricoXEmpleados",
     u"ListadoHistoricoEmpleadosSeleccion?totalizado ListadoHistoricoEmpleadosTodos",
     u"K_ListadoHisXEmp1.rpt?totalizado+todos K_ListadoHisXEmp2.rpt?totalizado K_ListadoHisXEmp3.rpt", u"Bucle"},
    {u"cmd_Ventas7", u"Impuestos", u"frmFechas", u"ListadoImpuestos", u"K_IVA.rpt", u"Bucle"},
    {u"cmd_Ventas8", u"Por Secciones", u"frmFechas", u"ListadoPorSecciones", u"K_Seccion2.rpt", u"Bucle"},
    {u"cmd_Ventas9", u"Pendientes de Pago", u"", u"ListadoPagosACuenta", u"K_pagosacuenta.rpt", u"Select Bucle"},
    {u"cmd_Ventas10", u"Por Facturas/Horas", u"frmFechas", u"ListadoTickets", u"K_Listado_tickets.rpt", u"Bucle"},
    {u"cmd_Ventas11", u"Productos Vendidos", u"frmFechas frmProductosVendidos", u"ListadoProductosVendidos",
     u"K_productosstock.rpt", u"Bucle"},
    {u"cmd_Ventas12", u"Caja Totales por Día", u"frmFechas", u"ListadoTotalesPorDia", u"K_TotalesXDia.rpt", u"Bucle"},
    {u"cmd_Ventas20", u"Por Arreglos", u"frmFechas", u"ListadoPorArreglos", u"K_porArreglos.rpt", u""},
    {u"cmdAlbaranes", u"Ventas modo Albaran", u"frmFechas", u"ListadoAlbaranes", u"T_Albaranes.rpt?comercio", u"Hoy"},
    {u"cmd_Estadisticas1", u"Descuentos Realizados", u"frmFechas", u"ListadoDescuentos", u"K_DescuentosRealizados.rpt", u"Bucle"},
    {u"cmd_Estadisticas2", u"Por Gastos", u"frmFechas", u"ListadoGastos", u"K_Gastos.rpt", u"Bucle"},
    {u"cmd_Estadisticas3", u"Ocupacion por Horas", u"frmFechas", u"ListadoOcupacionHoras", u"K_OcupacionXHoras.rpt", u"Bucle"},
    {u"cmd_Estadisticas4", u"Clientes Perdidos", u"frClientesPerdidos", u"ListadoClientesPerdidos", u"K_ClientesPerdidos.rpt",
     u"Bucle"},
    {u"cmd_Estadisticas5", u"Ranking por Facturacion", u"frmFechas", u"ListadoRanking",
     u"T_RankingFacturacion.rpt?comercio K_RankingFacturacion.rpt", u"Bucle"},
    {u"cmd_Estadisticas7", u"Ranking por Visitas", u"frmFechas", u"ListadoRanking",
     u"T_RankingVisitas.rpt?comercio K_RankingVisitas.rpt", u"Bucle"},
    {u"cmd_Estadisticas8", u"Visitas X Seccion", u"frmFechas", u"ListadoPorSecciones", u"K_VisitasXSeccion.rpt", u"Bucle"},
    {u"cmd_Generales1", u"Clientes", u"FrmOrdenClientes", u"ListadoClientes", u"K_Clientes.rpt", u"Select Bucle"},
    {u"cmd_Generales13", u"Cumpleaños", u"frmFechas", u"ListadoClientes", u"K_Clientes.rpt", u""},
    {u"cmd_GeneralesCliDinDep", u"Clientes con Dinero en Deposito", u"", u"ListadoClientesDineroDeposito",
     u"K_ClientesDineroDeposito.rpt", u"Select"},
    {u"cmd_Generales2", u"Productos", u"frmFiltrosProductos", u"ListadoProductosTallaColor?tallacolor ListadoProductosGeneral",
     u"K_Productos.rpt", u""},
    {u"cmd_Generales14", u"Productos Bajo Minimos", u"frmFiltrosProductos",
     u"ListadoProductosTallaColor?tallacolor ListadoProductosGeneral", u"K_Productos.rpt", u""},
    {u"cmd_Generales3", u"Empleados", u"", u"ListadoEmpleados", u"K_Empleados.rpt", u""},
    {u"cmd_Generales4", u"Servicios", u"frmOrdenServicios", u"ListadoServicios", u"K_Servicios.rpt", u""},
    {u"cmd_Generales5", u"Pack Spa", u"", u"ListadoPackSpa", u"K_PackSpa.rpt", u""},
    {u"cmd_Generales7", u"Pack Servicios", u"", u"ListadoPackServicios", u"K_PackServicios.rpt", u""},
    {u"cmd_Generales8", u"Secciones", u"", u"ListadoSecciones", u"K_Secciones.rpt", u""},
    {u"cmd_Generales9", u"Formas de Pago", u"", u"ListadoFormasPago", u"K_Formasdepago.rpt", u""},
    {u"cmd_Generales10", u"Proveedores", u"", u"ListadoProveedores", u"K_Proveedores.rpt", u""},
    {u"cmd_Generales11", u"Retiradas", u"frmFechas", u"ListadoRetiradas", u"K_Retiradas.rpt", u""},
    {u"cmd_Colores", u"Colores", u"", u"ListadoColores", u"TC_colores.rpt", u""},
    {u"cmd_Marcas", u"Marcas", u"", u"ListadoMarcas", u"TC_Marcas.rpt", u""},
    {u"cmd_Tallas", u"Tallas", u"", u"ListadoTallas", u"TC_Tallas.rpt", u""},
    {u"cmd_Talleres", u"Talleres", u"", u"ListadoTalleres", u"TC_Talleres.rpt", u""},
    {u"cmd_Arreglos", u"Arreglos", u"", u"ListadoArreglos", u"TC_Arreglos.rpt", u""},
    {u"Command10", u"Continuar", u"frAviso", u"ListadoEtiquetasClientes", u"K_etiquetas.rpt", u"Select SinFiltroAceptado"},
    {u"cmd_AgendaPendientes", u"Citas Pendientes", u"frmFechas", u"ListadoAgenda(1)", u"K_Agenda.rpt", u"Bucle"},
    {u"cmd_AgendaAnuladas", u"Citas Anuladas", u"frmFechas", u"ListadoAgenda(2)", u"K_Agenda.rpt", u"Bucle"},
    {u"cmd_AgendasAusentes", u"Citas Ausentes", u"frmFechas", u"ListadoAgenda(3)", u"K_Agenda.rpt", u"Bucle"},
    {u"Command22", u"Bonos Caducados", u"", u"ListadoBonos(2)", u"K_Bonos.rpt", u"Select Bucle ConAviso"},
    {u"Command23", u"Bonos Activos", u"", u"ListadoBonos(1)", u"K_Bonos.rpt", u"Select Bucle"},
    {u"Command18", u"Entrada de Productos", u"frmFechas", u"ListadoStockEntradas",
     u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
    {u"Command17", u"Ventas", u"frmFechas", u"ListadoStockVentas", u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
    {u"Command16", u"Devoluciones de Ventas", u"frmFechas", u"ListadoStockDevolucionesVentas",
     u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
    {u"Command15", u"Regularizaciones", u"frmFechas", u"ListadoStockRegularizaciones",
     u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
    {u"Command14", u"Inventarios", u"frmFechas", u"ListadoStockInventarios", u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt",
     u""},
    {u"Command13", u"Devoluciones a Proveedor", u"frmFechas", u"ListadoStockDevolucionesProveedor",
     u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
    {u"Command12", u"Traspasos a Consumo Interno", u"frmFechas", u"ListadoStockConsumoInterno(1)",
     u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
    {u"Command11", u"Devoluciones de Consumo Interno a Almacen", u"frmFechas", u"ListadoStockConsumoInterno(2)",
     u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
    {u"Command19", u"Baja de Productos de Consumo Interno", u"frmFechas", u"ListadoStockConsumoInterno(3)",
     u"T_EntradaStock.rpt?comercio K_EntradaStock.rpt", u""},
};

/// The chart's name stands for the layouts.
inline constexpr FilaEsperada Graficos[] = {
    {u"Command2", u"Ventas por horas", u"frmFechas", u"", u"facturacionXHoras", u"Bucle"},
    {u"Command4", u"Numero visitas x mes", u"", u"", u"VisitasXMes", u"Select Bucle"},
    {u"Command5", u"Por Secciones", u"frmFechas", u"", u"porSecciones", u"Bucle"},
    {u"Command6", u"Facturacion Anual", u"", u"", u"FacturacionAnual", u"Select Bucle"},
    {u"Command7", u"Facturacion Mensual", u"frmMeses", u"", u"FacturacionMensual", u"Bucle"},
    {u"Command8", u"Por Empleados", u"frmFechas", u"", u"porEmpleado", u"Bucle"},
    {u"Command9", u"Formas de Pago", u"frmFechas", u"", u"formapago", u"Bucle"},
};

inline constexpr FilaEsperada Acciones[] = {
    {u"cmd_Generales21", u"Carteles", u"", u"", u"", u""},
    {u"cmd_Generales22", u"Etiquetas de Productos", u"", u"", u"", u""},
    {u"cmd_Generales12", u"Etiquetas de Clientes", u"", u"", u"", u""},
    {u"cmd_Ayuda", u"", u"", u"", u"", u""},
    {u"cmd_Salir", u"Salir", u"", u"", u"", u""},
};

inline constexpr FilaEsperada SinAccion[] = {
    {u"cmdListados", u"Listados anteriores a la migracion", u"", u"", u"", u""},
    {u"Command1", u"Cuadricula", u"", u"", u"", u""},
    {u"Command3", u"", u"", u"", u"", u""},
    {u"cmd_Estadisticas6", u"Fidelizacion", u"", u"", u"", u""},
};

} // namespace kestrane::prueba
