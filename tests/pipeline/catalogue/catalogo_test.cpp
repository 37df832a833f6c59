#include "pipeline/catalogue/catalogo.h"

#include "platform/database/entorno_datos.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QSet>
#include <QStringList>

namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;

struct FilaEsperada
{
    QStringView control;
    QStringView leyenda;
    QStringView dialogos;
    QStringView constructores;
    QStringView disenos; ///< in any order
    QStringView marcas;
};

constexpr FilaEsperada Informes[] = {
    {u"cmd_Caja1", u"Caja Diaria General", u"F", u"ListadoCajaDiaria", u"K_caja_diariageneral2.rpt T_caja_diariageneral2.rpt",
     u"Hoy Bucle"},
    {u"cmdCajaDiariaResumido", u"Caja Diaria General Resumido", u"F", u"ListadoCajaDiaria",
     u"K_caja_diariaResumido.rpt T_caja_diariaResumido.rpt", u"Hoy Bucle"},
    {u"cmd_Caja3", u"Caja General por Empleados", u"F+", u"ListadoCajaGeneral",
     u"K_caja_general_ticket.rpt T_caja_general_ticket.rpt K_caja_general.rpt", u"Hoy Bucle"},
    {u"cmd_Caja4", u"Caja Diaria Formato Ticket", u"F", u"ListadoCajaTickets", u"K_caja_tickets.rpt", u"Hoy Bucle"},
    {u"cmd_Caja5", u"Re-Impresion de Facturas", u"frmReImprimir", u"ListadoFactura", u"K_factura.rpt", u"Select"},
    {u"cmd_Ventas1", u"Por Servicios", u"F+", u"ListadoPorServicios", u"K_porservicios_ticket.rpt K_porservicios.rpt", u"Bucle"},
    {u"cmd_Ventas2", u"Formas de Pago", u"F", u"ListadoFormasPagoVentas", u"K_formapago.rpt", u"Bucle"},
    {u"cmd_Ventas3", u"Hist. X Clientes", u"frmBuscar frmHistoricoXClientes", u"ListadoHistoricoClientes",
     u"K_Listado_Historico.rpt T_Listado_Historico.rpt", u"Bucle SinFiltroAceptado"},
    {u"cmd_Ventas4", u"Por Pack Servicios", u"F+", u"ListadoPorPackSpa", u"K_porPackSpa_ticket.rpt K_porPackSpa.rpt", u""},
    {u"cmd_Ventas5", u"Por Productos", u"F+", u"ListadoPorProductos ListadoPorProductosTallaColor",
     u"K_porproductos_ticket.rpt TC_porproductos.rpt K_porproductos_S.rpt K_porproductos.rpt", u"Bucle"},
    {u"cmd_Ventas6", u"Hist. X Empleados", u"frmHistoricoXEmpleados",
     u"ListadoHistoricoEmpleadosSeleccion ListadoHistoricoEmpleadosTodos",
     u"K_ListadoHisXEmp1.rpt K_ListadoHisXEmp2.rpt K_ListadoHisXEmp3.rpt", u"Bucle"},
    {u"cmd_Ventas7", u"Impuestos", u"F", u"ListadoImpuestos", u"K_IVA.rpt", u"Bucle"},
    {u"cmd_Ventas8", u"Por Secciones", u"F", u"ListadoPorSecciones", u"K_Seccion2.rpt", u"Bucle"},
    {u"cmd_Ventas9", u"Pendientes de Pago", u"", u"ListadoPagosACuenta", u"K_pagosacuenta.rpt", u"Select Bucle"},
    {u"cmd_Ventas10", u"Por Facturas/Horas", u"F", u"ListadoTickets", u"K_Listado_tickets.rpt", u"Bucle"},
    {u"cmd_Ventas11", u"Productos Vendidos", u"F frmProductosVendidos", u"ListadoProductosVendidos", u"K_productosstock.rpt",
     u"Bucle"},
    {u"cmd_Ventas12", u"Caja Totales por Día", u"F", u"ListadoTotalesPorDia", u"K_TotalesXDia.rpt", u"Bucle"},
    {u"cmd_Ventas20", u"Por Arreglos", u"F", u"ListadoPorArreglos", u"K_porArreglos.rpt", u""},
    {u"cmdAlbaranes", u"Ventas modo Albaran", u"F", u"ListadoAlbaranes", u"T_Albaranes.rpt", u"Hoy"},
    {u"cmd_Estadisticas1", u"Descuentos Realizados", u"F", u"ListadoDescuentos", u"K_DescuentosRealizados.rpt", u"Bucle"},
    {u"cmd_Estadisticas2", u"Por Gastos", u"F", u"ListadoGastos", u"K_Gastos.rpt", u"Bucle"},
    {u"cmd_Estadisticas3", u"Ocupacion por Horas", u"F", u"ListadoOcupacionHoras", u"K_OcupacionXHoras.rpt", u"Bucle"},
    {u"cmd_Estadisticas4", u"Clientes Perdidos", u"frClientesPerdidos", u"ListadoClientesPerdidos", u"K_ClientesPerdidos.rpt",
     u"Bucle"},
    {u"cmd_Estadisticas5", u"Ranking por Facturacion", u"F", u"ListadoRanking",
     u"K_RankingFacturacion.rpt T_RankingFacturacion.rpt", u"Bucle"},
    {u"cmd_Estadisticas7", u"Ranking por Visitas", u"F", u"ListadoRanking", u"K_RankingVisitas.rpt T_RankingVisitas.rpt", u"Bucle"},
    {u"cmd_Estadisticas8", u"Visitas X Seccion", u"F", u"ListadoPorSecciones", u"K_VisitasXSeccion.rpt", u"Bucle"},
    {u"cmd_Generales1", u"Clientes", u"FrmOrdenClientes", u"ListadoClientes", u"K_Clientes.rpt", u"Select Bucle"},
    {u"cmd_Generales13", u"Cumpleaños", u"F", u"ListadoClientes", u"K_Clientes.rpt", u""},
    {u"cmd_GeneralesCliDinDep", u"Clientes con Dinero en Deposito", u"", u"ListadoClientesDineroDeposito",
     u"K_ClientesDineroDeposito.rpt", u"Select"},
    {u"cmd_Generales2", u"Productos", u"frmFiltrosProductos", u"ListadoProductosTallaColor ListadoProductosGeneral",
     u"K_Productos.rpt", u""},
    {u"cmd_Generales14", u"Productos Bajo Minimos", u"frmFiltrosProductos", u"ListadoProductosTallaColor ListadoProductosGeneral",
     u"K_Productos.rpt", u""},
    {u"cmd_Generales3", u"Empleados", u"", u"ListadoEmpleados", u"K_Empleados.rpt", u""},
    {u"cmd_Generales4", u"Servicios", u"frmOrdenServicios", u"ListadoServicios", u"K_Servicios.rpt", u""},
    {u"cmd_Generales5", u"Pack Spa", u"", u"ListadoPackSpa", u"K_PackSpa.rpt", u""},
    {u"cmd_Generales7", u"Pack Servicios", u"", u"ListadoPackServicios", u"K_PackServicios.rpt", u""},
    {u"cmd_Generales8", u"Secciones", u"", u"ListadoSecciones", u"K_Secciones.rpt", u""},
    {u"cmd_Generales9", u"Formas de Pago", u"", u"ListadoFormasPago", u"K_Formasdepago.rpt", u""},
    {u"cmd_Generales10", u"Proveedores", u"", u"ListadoProveedores", u"K_Proveedores.rpt", u""},
    {u"cmd_Generales11", u"Retiradas", u"F", u"ListadoRetiradas", u"K_Retiradas.rpt", u""},
    {u"cmd_Colores", u"Colores", u"", u"ListadoColores", u"TC_colores.rpt", u""},
    {u"cmd_Marcas", u"Marcas", u"", u"ListadoMarcas", u"TC_Marcas.rpt", u""},
    {u"cmd_Tallas", u"Tallas", u"", u"ListadoTallas", u"TC_Tallas.rpt", u""},
    {u"cmd_Talleres", u"Talleres", u"", u"ListadoTalleres", u"TC_Talleres.rpt", u""},
    {u"cmd_Arreglos", u"Arreglos", u"", u"ListadoArreglos", u"TC_Arreglos.rpt", u""},
    {u"cmd_AgendaPendientes", u"Citas Pendientes", u"F", u"ListadoAgenda", u"K_Agenda.rpt", u"Bucle"},
    {u"cmd_AgendaAnuladas", u"Citas Anuladas", u"F", u"ListadoAgenda", u"K_Agenda.rpt", u"Bucle"},
    {u"cmd_AgendasAusentes", u"Citas Ausentes", u"F", u"ListadoAgenda", u"K_Agenda.rpt", u"Bucle"},
    {u"Command22", u"Bonos Caducados", u"", u"ListadoBonos", u"K_Bonos.rpt", u"Select Bucle ConAviso"},
    {u"Command23", u"Bonos Activos", u"", u"ListadoBonos", u"K_Bonos.rpt", u"Select Bucle"},
    {u"Command18", u"Entrada de Productos", u"F", u"ListadoStockEntradas", u"K_EntradaStock.rpt T_EntradaStock.rpt", u""},
    {u"Command17", u"Ventas", u"F", u"ListadoStockVentas", u"K_EntradaStock.rpt T_EntradaStock.rpt", u""},
    {u"Command16", u"Devoluciones de Ventas", u"F", u"ListadoStockDevolucionesVentas", u"K_EntradaStock.rpt T_EntradaStock.rpt",
     u""},
    {u"Command15", u"Regularizaciones", u"F", u"ListadoStockRegularizaciones", u"K_EntradaStock.rpt T_EntradaStock.rpt", u""},
    {u"Command14", u"Inventarios", u"F", u"ListadoStockInventarios", u"K_EntradaStock.rpt T_EntradaStock.rpt", u""},
    {u"Command13", u"Devoluciones a Proveedor", u"F", u"ListadoStockDevolucionesProveedor",
     u"K_EntradaStock.rpt T_EntradaStock.rpt", u""},
    {u"Command12", u"Traspasos a Consumo Interno", u"F", u"ListadoStockConsumoInterno", u"K_EntradaStock.rpt T_EntradaStock.rpt",
     u""},
    {u"Command11", u"Devoluciones de Consumo Interno a Almacen", u"F", u"ListadoStockConsumoInterno",
     u"K_EntradaStock.rpt T_EntradaStock.rpt", u""},
    {u"Command19", u"Baja de Productos de Consumo Interno", u"F", u"ListadoStockConsumoInterno",
     u"K_EntradaStock.rpt T_EntradaStock.rpt", u""},
};

/// The chart's name stands for the layouts.
constexpr FilaEsperada Graficos[] = {
    {u"Command2", u"Ventas por horas", u"F", u"", u"facturacionXHoras", u"Bucle"},
    {u"Command4", u"Numero visitas x mes", u"", u"", u"VisitasXMes", u"Select Bucle"},
    {u"Command5", u"Por Secciones", u"F", u"", u"porSecciones", u"Bucle"},
    {u"Command6", u"Facturacion Anual", u"", u"", u"FacturacionAnual", u"Select Bucle"},
    {u"Command7", u"Facturacion Mensual", u"frmMeses", u"", u"FacturacionMensual", u"Bucle"},
    {u"Command8", u"Por Empleados", u"F", u"", u"porEmpleado", u"Bucle"},
    {u"Command9", u"Formas de Pago", u"F", u"", u"formapago", u"Bucle"},
};

constexpr FilaEsperada Acciones[] = {
    {u"cmd_Generales21", u"Carteles", u"", u"", u"", u""},
    {u"cmd_Generales22", u"Etiquetas de Productos", u"", u"", u"", u""},
    {u"cmd_Generales12", u"Etiquetas de Clientes", u"", u"", u"", u""},
    {u"cmd_Ayuda", u"", u"", u"", u"", u""},
    {u"cmd_Salir", u"Salir", u"", u"", u"", u""},
};

constexpr FilaEsperada SinAccion[] = {
    {u"cmdListados", u"Listados anteriores a la migracion", u"", u"", u"", u""},
    {u"Command1", u"Cuadricula", u"", u"", u"", u""},
    {u"Command3", u"", u"", u"", u"", u""},
    {u"cmd_Estadisticas6", u"Fidelizacion", u"", u"", u"", u""},
};

QString nombre(Dialogo dialogo)
{
    static const QHash<Dialogo, QString> nombres{
        {Dialogo::Fechas, u"F"_s},
        {Dialogo::FechasConFormatos, u"F+"_s},
        {Dialogo::Buscar, u"frmBuscar"_s},
        {Dialogo::HistoricoXClientes, u"frmHistoricoXClientes"_s},
        {Dialogo::HistoricoXEmpleados, u"frmHistoricoXEmpleados"_s},
        {Dialogo::FiltrosProductos, u"frmFiltrosProductos"_s},
        {Dialogo::ProductosVendidos, u"frmProductosVendidos"_s},
        {Dialogo::OrdenClientes, u"FrmOrdenClientes"_s},
        {Dialogo::OrdenServicios, u"frmOrdenServicios"_s},
        {Dialogo::ClientesPerdidos, u"frClientesPerdidos"_s},
        {Dialogo::Meses, u"frmMeses"_s},
        {Dialogo::ReImprimir, u"frmReImprimir"_s},
    };
    return nombres.value(dialogo, u"?"_s);
}

QString dialogosDe(const FilaCatalogo& fila)
{
    QStringList nombres;
    for (int i = 0; i < fila.dialogos.cuantos; ++i)
        nombres += nombre(fila.dialogos.dialogos[static_cast<size_t>(i)]);
    return nombres.join(u' ');
}

QString constructoresDe(const FilaCatalogo& fila)
{
    QStringList nombres;
    for (const OpcionConstructor& opcion : fila.constructores) {
        if (opcion.presente())
            nombres += opcion.nombre.toString();
    }
    return nombres.join(u' ');
}

QStringList ordenadas(QStringList palabras)
{
    palabras.removeAll(QString{});
    palabras.sort();
    return palabras;
}

QStringList disenosDe(const FilaCatalogo& fila)
{
    QStringList ficheros{fila.grafico.toString()};
    for (const Diseno& diseno : fila.disenos)
        ficheros += diseno.fichero.toString();
    return ordenadas(ficheros);
}

QString marcasDe(const FilaCatalogo& fila)
{
    static const std::pair<Marca, QString> nombres[] = {{Marca::Hoy, u"Hoy"_s},
                                                        {Marca::Select, u"Select"_s},
                                                        {Marca::Bucle, u"Bucle"_s},
                                                        {Marca::SinFiltroAceptado, u"SinFiltroAceptado"_s},
                                                        {Marca::ConAviso, u"ConAviso"_s}};
    QStringList marcas;
    for (const auto& [marca, texto] : nombres) {
        if (fila.marcas.testFlag(marca))
            marcas += texto;
    }
    return marcas.join(u' ');
}

void compara(std::span<const FilaEsperada> esperadas, Clase clase)
{
    for (const FilaEsperada& esperada : esperadas) {
        const std::string control = esperada.control.toString().toStdString();
        const FilaCatalogo* const fila = busca(esperada.control);
        ASSERT_NE(fila, nullptr) << control;
        EXPECT_EQ(fila->control, esperada.control);
        EXPECT_EQ(fila->clase, clase) << control;
        EXPECT_EQ(fila->leyenda, esperada.leyenda) << control;
        EXPECT_EQ(dialogosDe(*fila), esperada.dialogos) << control;
        EXPECT_EQ(constructoresDe(*fila), esperada.constructores) << control;
        EXPECT_EQ(disenosDe(*fila), ordenadas(esperada.disenos.toString().split(u' '))) << control;
        EXPECT_EQ(marcasDe(*fila), esperada.marcas) << control;
    }
}

TEST(Catalogo, AControlThatIsNotThereIsNotFound)
{
    EXPECT_EQ(busca(u"cmd_Caja2"), nullptr);
    EXPECT_EQ(busca(u""), nullptr);
    EXPECT_EQ(busca(u"cmd_Caja1 "), nullptr);
}

TEST(Catalogo, EveryReportHasItsRow)
{
    compara(Informes, Clase::Informe);
}

TEST(Catalogo, EveryChartHasItsRow)
{
    compara(Graficos, Clase::Grafico);
}

TEST(Catalogo, WhatOpensAWindowOfItsOwnAndWhatDoesNothingHaveTheirRowsToo)
{
    compara(Acciones, Clase::Accion);
    compara(SinAccion, Clase::SinAccion);
}

TEST(Catalogo, ThereIsNothingElseInItAndNothingTwice)
{
    EXPECT_EQ(catalogo().size(), std::size(Informes) + std::size(Graficos) + std::size(Acciones) + std::size(SinAccion));
    QSet<QString> controles;
    for (const FilaCatalogo& fila : catalogo())
        controles.insert(fila.control.toString().toCaseFolded());
    EXPECT_EQ(static_cast<size_t>(controles.size()), catalogo().size());
}

TEST(Catalogo, AControlIsFoundWhateverItsCase)
{
    EXPECT_EQ(busca(u"CMD_caja1"), busca(u"cmd_Caja1"));
}

TEST(Catalogo, TheTwelveListingsOfTheMasterTablesCanRunAndTheOthersSayWhatIsMissing)
{
    for (const QStringView control :
         {u"cmd_Generales3", u"cmd_Generales4", u"cmd_Generales5", u"cmd_Generales7", u"cmd_Generales8", u"cmd_Generales9",
          u"cmd_Generales10", u"cmd_Colores", u"cmd_Marcas", u"cmd_Tallas", u"cmd_Talleres", u"cmd_Arreglos"})
        EXPECT_TRUE(constructorQueFalta(*busca(control)).isEmpty()) << control.toString().toStdString();
    EXPECT_EQ(constructorQueFalta(*busca(u"cmd_Caja1")), u"ListadoCajaDiaria");
    EXPECT_TRUE(constructorQueFalta(*busca(u"Command2")).isEmpty());
}

/// The layout that a row takes, and "!" where it goes to the ticket printer; "" when it shows nothing.
class DisenosTest : public testing::Test
{
protected:
    std::string diseno(QStringView control, const QString& tipoPrograma)
    {
        m_contexto.TipoPrograma = tipoPrograma;
        const Diseno* const elegido = primera(busca(control)->disenos, m_contexto);
        if (!elegido)
            return {};
        return (elegido->fichero.toString() + (elegido->impresora == ImpresoraDe::Ticket ? u"!"_s : u""_s)).toStdString();
    }

    std::string enTicket(QStringView control, const QString& tipoPrograma)
    {
        m_contexto.FormatoTicket = true;
        const std::string elegido = diseno(control, tipoPrograma);
        m_contexto.FormatoTicket = false;
        return elegido;
    }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
};

TEST_F(DisenosTest, RetailFlavoursTakeTheFileWithTheirPrefix)
{
    EXPECT_EQ(diseno(u"cmd_Caja1", u"PELUQUERIA"_s), "K_caja_diariageneral2.rpt");
    EXPECT_EQ(diseno(u"cmd_Caja1", u"ZAPATERIA"_s), "T_caja_diariageneral2.rpt");
    EXPECT_EQ(diseno(u"cmd_Caja1", u"PANADERIA"_s), "T_caja_diariageneral2.rpt");
    EXPECT_EQ(diseno(u"cmd_Caja1", u"panaderia"_s), "K_caja_diariageneral2.rpt");
    EXPECT_EQ(enTicket(u"cmd_Caja1", u"TPV"_s), "T_caja_diariageneral2.rpt");
    EXPECT_EQ(diseno(u"cmd_Ventas3", u"TPV"_s), "T_Listado_Historico.rpt");
    EXPECT_EQ(diseno(u"Command11", u"TPV"_s), "T_EntradaStock.rpt");
    EXPECT_EQ(diseno(u"Command11", u"SPA"_s), "K_EntradaStock.rpt");
}

TEST_F(DisenosTest, TheTicketFormatHasItsFileAndItsPrinter)
{
    EXPECT_EQ(diseno(u"cmd_Ventas1", u"SPA"_s), "K_porservicios.rpt");
    EXPECT_EQ(enTicket(u"cmd_Ventas1", u"SPA"_s), "K_porservicios_ticket.rpt!");
    EXPECT_EQ(enTicket(u"cmd_Ventas4", u"TPV"_s), "K_porPackSpa_ticket.rpt!");
    EXPECT_EQ(diseno(u"cmd_Caja4", u"SPA"_s), "K_caja_tickets.rpt!");
}

TEST_F(DisenosTest, TheGeneralCashTellsTheRetailFlavoursApartOnTicketsAlone)
{
    EXPECT_EQ(diseno(u"cmd_Caja3", u"SPA"_s), "K_caja_general.rpt");
    EXPECT_EQ(diseno(u"cmd_Caja3", u"TPV"_s), "K_caja_general.rpt");
    EXPECT_EQ(enTicket(u"cmd_Caja3", u"SPA"_s), "K_caja_general_ticket.rpt!");
    EXPECT_EQ(enTicket(u"cmd_Caja3", u"TPV"_s), "T_caja_general_ticket.rpt!");
}

TEST_F(DisenosTest, SalesByProductHaveFourFiles)
{
    EXPECT_EQ(diseno(u"cmd_Ventas5", u"SPA"_s), "K_porproductos.rpt");
    EXPECT_EQ(diseno(u"cmd_Ventas5", u"TALLACOLOR"_s), "TC_porproductos.rpt");
    EXPECT_EQ(diseno(u"cmd_Ventas5", u"SUPERMERCADO"_s), "K_porproductos_S.rpt");
    EXPECT_EQ(enTicket(u"cmd_Ventas5", u"SUPERMERCADO"_s), "K_porproductos_ticket.rpt!");
    EXPECT_EQ(enTicket(u"cmd_Ventas5", u"TALLACOLOR"_s), "K_porproductos_ticket.rpt!");
}

TEST_F(DisenosTest, TheEmployeeHistoryFollowsWhatTheDialogAnswered)
{
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp3.rpt");
    m_contexto.filtros.empleado = 3;
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp3.rpt");
    m_contexto.filtros.totalizado = true;
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp2.rpt");
    m_contexto.filtros.empleado = -1;
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp1.rpt");
}

TEST_F(DisenosTest, DeliveryNotesAreShownInRetailFlavoursAlone)
{
    EXPECT_EQ(diseno(u"cmdAlbaranes", u"TALLACOLOR"_s), "T_Albaranes.rpt");
    EXPECT_EQ(diseno(u"cmdAlbaranes", u"PELUQUERIA"_s), "");
}

/// The builder that a row takes.
class ConstructoresTest : public DisenosTest
{
protected:
    std::string constructor(QStringView control, const QString& tipoPrograma)
    {
        m_contexto.TipoPrograma = tipoPrograma;
        const OpcionConstructor* const elegido = primera(busca(control)->constructores, m_contexto);
        return elegido ? elegido->nombre.toString().toStdString() : std::string{};
    }
};

TEST_F(ConstructoresTest, TheFlavourChoosesTheBuilder)
{
    EXPECT_EQ(constructor(u"cmd_Ventas5", u"PERFUMERIA"_s), "ListadoPorProductos");
    EXPECT_EQ(constructor(u"cmd_Ventas5", u"ZAPATERIA"_s), "ListadoPorProductosTallaColor");
    EXPECT_EQ(constructor(u"cmd_Ventas5", u"PELUQUERIA"_s), "ListadoPorProductosTallaColor");
    EXPECT_EQ(constructor(u"cmd_Generales2", u"ZAPATERIA"_s), "ListadoProductosTallaColor");
    EXPECT_EQ(constructor(u"cmd_Generales14", u"TPV"_s), "ListadoProductosGeneral");
}

TEST_F(ConstructoresTest, TheDialogsAnswerChoosesTheBuilder)
{
    EXPECT_EQ(constructor(u"cmd_Ventas6", u"SPA"_s), "ListadoHistoricoEmpleadosTodos");
    m_contexto.filtros.totalizado = true;
    EXPECT_EQ(constructor(u"cmd_Ventas6", u"SPA"_s), "ListadoHistoricoEmpleadosSeleccion");
    EXPECT_EQ(constructor(u"cmd_Caja5", u"SPA"_s), "");
    m_contexto.ReimprimirFactura = true;
    EXPECT_EQ(constructor(u"cmd_Caja5", u"SPA"_s), "ListadoFactura");
}

} // namespace
} // namespace kestrane::catalogue
