#include "lote/dialogos_de_lote.h"

#include "apoyo/tienda_de_prueba.h"
#include "lote/peticion_imposible.h"
#include "pipeline/catalogue/catalogo.h"

#include <gtest/gtest.h>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

constexpr qint32 Todos = -1;

class DialogosDeLoteTest : public testing::Test
{
protected:
    DialogosDeLoteTest()
    {
        m_tienda.ejecuta({u"insert into clientes (codigo, nombre) values (17, 'Ana')"_s,
                          u"insert into clientes (codigo, nombre, borrar) values (18, 'Eva', -1)"_s,
                          u"insert into seccion (codigo, nombre) values (4, 'Champús')"_s,
                          u"insert into seccion (codigo, nombre, borrar) values (5, 'Vieja', -1)"_s,
                          u"insert into proveedores (codigo, nombre) values (9, 'Ñandú S.L.')"_s,
                          u"insert into empleados (codigo, nombre, mostrar_caja) values (3, 'Luz', -1)"_s,
                          u"insert into empleados (codigo, nombre, mostrar_caja, baja) values (4, 'Sol', -1, -1)"_s,
                          u"insert into empleados (codigo, nombre, mostrar_caja) values (5, 'Paz', 0)"_s});
        m_contexto.ConexionTienda.Open(u"dsn=TiendaKestrane"_s);
        m_contexto.ModuloFacturas = true;
        m_pedido.fila = catalogue::busca(u"cmd_Ventas2");
    }

    void responde(Respuesta respuesta, Valor valor = true) { m_pedido.respuestas[respuesta] = std::move(valor); }
    void respondeDia(Respuesta respuesta, int mes, int dia) { responde(respuesta, *Fecha::deCalendario(2024, mes, dia)); }

    /// The options that the dialog did not ask for.
    QString muestra(Dialogo dialogo)
    {
        DialogosDeLote dialogos{m_contexto, m_pedido, m_reloj};
        dialogos.Muestra(dialogo, {});
        return dialogos.ignoradas().join(u' ');
    }

    std::string rechazo(Dialogo dialogo)
    {
        try {
            muestra(dialogo);
            return {};
        } catch (const PeticionImposible& error) {
            return error.mensaje().toStdString();
        }
    }

    TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
    PedidoInforme m_pedido;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15, 18)};
};

TEST_F(DialogosDeLoteTest, APeriodThatEndsBeforeItBeginsIsRefusedAndNeitherDayIsStored)
{
    respondeDia(Respuesta::Desde, 3, 10);
    respondeDia(Respuesta::Hasta, 3, 9);
    EXPECT_EQ(rechazo(Dialogo::Fechas), "La fecha hasta seleccionada es anterior a la fecha desde.");
    EXPECT_EQ(m_contexto.FechaDesde, Fecha{});
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

TEST_F(DialogosDeLoteTest, TheDatesAreTodayUnlessTheyAreGiven)
{
    EXPECT_EQ(muestra(Dialogo::Fechas), u""_s);
    EXPECT_EQ(m_contexto.FechaDesde, *Fecha::deCalendario(2024, 3, 15));
    EXPECT_EQ(m_contexto.FechaHasta, *Fecha::deCalendario(2024, 3, 15));
    EXPECT_TRUE(m_contexto.FiltroAceptado);
    respondeDia(Respuesta::Desde, 3, 1);
    muestra(Dialogo::Fechas);
    EXPECT_EQ(m_contexto.FechaDesde, *Fecha::deCalendario(2024, 3, 1));
    EXPECT_EQ(m_contexto.FechaHasta, *Fecha::deCalendario(2024, 3, 15));
    respondeDia(Respuesta::Hasta, 3, 1);
    muestra(Dialogo::Fechas);
    EXPECT_EQ(m_contexto.FechaHasta, *Fecha::deCalendario(2024, 3, 1));
}

TEST_F(DialogosDeLoteTest, TheDateDialogResetsFormatAndCompleteness)
{
    m_contexto.FormatoTicket = m_contexto.CajaCompleta = true;
    responde(Respuesta::Ticket);
    EXPECT_EQ(muestra(Dialogo::Fechas), u"--ticket"_s);
    EXPECT_FALSE(m_contexto.FormatoTicket || m_contexto.CajaCompleta);
}

TEST_F(DialogosDeLoteTest, WithItsPanelOfFormatsItOffersTheTicket)
{
    responde(Respuesta::Ticket);
    EXPECT_EQ(muestra(Dialogo::FechasConFormatos), u""_s);
    EXPECT_TRUE(m_contexto.FormatoTicket);
}

TEST_F(DialogosDeLoteTest, CompletenessIsOfferedWithTheInvoiceModuleAlone)
{
    responde(Respuesta::Completa);
    EXPECT_EQ(muestra(Dialogo::Fechas), u""_s);
    EXPECT_TRUE(m_contexto.CajaCompleta);
    m_contexto.ModuloFacturas = false;
    EXPECT_EQ(muestra(Dialogo::Fechas), u"--completa"_s);
    EXPECT_FALSE(m_contexto.CajaCompleta);
}

TEST_F(DialogosDeLoteTest, WhatNoDialogAskedForIsTold)
{
    responde(Respuesta::Cliente, qint32{7});
    responde(Respuesta::Mes, qint32{3});
    respondeDia(Respuesta::Desde, 3, 1);
    EXPECT_EQ(muestra(Dialogo::Fechas), u"--cliente --mes"_s);
    EXPECT_EQ(muestra(Dialogo::SelTienda), u"--desde --cliente --mes"_s);
}

TEST_F(DialogosDeLoteTest, TheSearchNeedsItsClientAndTheReprintItsNumber)
{
    EXPECT_EQ(rechazo(Dialogo::Buscar), "cmd_Ventas2 necesita --cliente N.");
    EXPECT_EQ(rechazo(Dialogo::ReImprimir), "cmd_Ventas2 necesita --factura N.");
    responde(Respuesta::Cliente, qint32{17});
    responde(Respuesta::Factura, qint32{105});
    muestra(Dialogo::Buscar);
    EXPECT_EQ(m_contexto.ClienteBuscado, u"17"_s);
    muestra(Dialogo::ReImprimir);
    EXPECT_EQ(m_contexto.NumeroReimpresion, u"105"_s);
    EXPECT_TRUE(m_contexto.ReimprimirFactura && m_contexto.FiltroAceptado);
}

TEST_F(DialogosDeLoteTest, ACodeThatNoButtonHasIsRefusedInEveryDialog)
{
    const auto con = [this](Respuesta respuesta, qint32 codigo, Dialogo dialogo) {
        m_pedido.respuestas = {{respuesta, codigo}};
        return rechazo(dialogo);
    };
    EXPECT_EQ(con(Respuesta::Cliente, 99, Dialogo::Buscar), "cmd_Ventas2 no ofrece el código 99.");
    EXPECT_EQ(con(Respuesta::Cliente, 18, Dialogo::Buscar), "cmd_Ventas2 no ofrece el código 18.");
    EXPECT_EQ(con(Respuesta::Seccion, 5, Dialogo::HistoricoXClientes), "cmd_Ventas2 no ofrece el código 5.");
    EXPECT_EQ(con(Respuesta::Empleado, 4, Dialogo::HistoricoXEmpleados), "cmd_Ventas2 no ofrece el código 4.");
    EXPECT_EQ(con(Respuesta::Empleado, 5, Dialogo::ProductosVendidos), "cmd_Ventas2 no ofrece el código 5.");
    EXPECT_EQ(con(Respuesta::Proveedor, 8, Dialogo::ProductosVendidos), "cmd_Ventas2 no ofrece el código 8.");
    EXPECT_EQ(con(Respuesta::Proveedor, 8, Dialogo::FiltrosProductos), "cmd_Ventas2 no ofrece el código 8.");
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

TEST_F(DialogosDeLoteTest, TheCodeOfAllIsAll)
{
    responde(Respuesta::Empleado, Todos);
    responde(Respuesta::Seccion, Todos);
    responde(Respuesta::Proveedor, Todos);
    EXPECT_EQ(rechazo(Dialogo::HistoricoXEmpleados), "");
    EXPECT_EQ(rechazo(Dialogo::HistoricoXClientes), "");
    EXPECT_EQ(rechazo(Dialogo::ProductosVendidos), "");
    EXPECT_TRUE(m_contexto.filtros.todasLasSecciones);
}

TEST_F(DialogosDeLoteTest, ByMonthsCompletenessIsOfferedInEveryShop)
{
    m_contexto.ModuloFacturas = false;
    responde(Respuesta::Completa);
    EXPECT_EQ(muestra(Dialogo::Meses), u""_s);
    EXPECT_TRUE(m_contexto.CajaCompleta);
}

TEST_F(DialogosDeLoteTest, AClientsHistoryIsOfAllSectionsUnlessOneIsGiven)
{
    muestra(Dialogo::HistoricoXClientes);
    EXPECT_TRUE(m_contexto.filtros.todasLasSecciones);
    EXPECT_EQ(m_contexto.filtros.seccion, Todos);
    responde(Respuesta::Seccion, qint32{4});
    muestra(Dialogo::HistoricoXClientes);
    EXPECT_FALSE(m_contexto.filtros.todasLasSecciones);
    EXPECT_EQ(m_contexto.filtros.seccion, 4);
}

TEST_F(DialogosDeLoteTest, AClientsHistoryIsOfProductsOrServicesOrBoth)
{
    muestra(Dialogo::HistoricoXClientes);
    EXPECT_FALSE(m_contexto.filtros.soloProductos || m_contexto.filtros.soloServicios);
    responde(Respuesta::Solo, u"servicios"_s);
    EXPECT_EQ(muestra(Dialogo::HistoricoXClientes), u""_s);
    EXPECT_TRUE(m_contexto.filtros.soloServicios);
    EXPECT_FALSE(m_contexto.filtros.soloProductos);
    responde(Respuesta::Solo, u"productos"_s);
    muestra(Dialogo::HistoricoXClientes);
    EXPECT_TRUE(m_contexto.filtros.soloProductos);
    EXPECT_FALSE(m_contexto.filtros.soloServicios);
}

TEST_F(DialogosDeLoteTest, WhereThereAreOnlyProductsThatChoiceIsNotOffered)
{
    m_contexto.TipoPrograma = u"PERFUMERIA"_s;
    responde(Respuesta::Solo, u"servicios"_s);
    EXPECT_EQ(muestra(Dialogo::HistoricoXClientes), u"--solo"_s);
    EXPECT_TRUE(m_contexto.filtros.soloProductos);
    EXPECT_FALSE(m_contexto.filtros.soloServicios);
}

TEST_F(DialogosDeLoteTest, TheEmployeesHistoryIsOfAllAndInDetailUnlessToldOtherwise)
{
    m_contexto.CajaCompleta = true;
    muestra(Dialogo::HistoricoXEmpleados);
    EXPECT_EQ(m_contexto.filtros.empleado, Todos);
    EXPECT_FALSE(m_contexto.filtros.totalizado || m_contexto.FormatoTicket || m_contexto.CajaCompleta);
    responde(Respuesta::Empleado, qint32{3});
    responde(Respuesta::Totalizado);
    responde(Respuesta::Ticket);
    responde(Respuesta::Completa);
    EXPECT_EQ(muestra(Dialogo::HistoricoXEmpleados), u""_s);
    EXPECT_EQ(m_contexto.filtros.empleado, 3);
    EXPECT_TRUE(m_contexto.filtros.totalizado && m_contexto.FormatoTicket && m_contexto.CajaCompleta);
}

TEST_F(DialogosDeLoteTest, ProductsSoldAreOfAllEmployeesAndSuppliersUnlessToldOtherwise)
{
    muestra(Dialogo::ProductosVendidos);
    EXPECT_EQ(m_contexto.filtros.empleado, Todos);
    EXPECT_EQ(m_contexto.filtros.proveedor, Todos);
    responde(Respuesta::Empleado, qint32{3});
    responde(Respuesta::Proveedor, qint32{9});
    EXPECT_EQ(muestra(Dialogo::ProductosVendidos), u""_s);
    EXPECT_EQ(m_contexto.filtros.empleado, 3);
    EXPECT_EQ(m_contexto.filtros.proveedor, 9);
}

TEST_F(DialogosDeLoteTest, AColumnOutsideTheDialogsListIsRefused)
{
    responde(Respuesta::Orden, u"Stock"_s);
    EXPECT_EQ(rechazo(Dialogo::OrdenServicios), "cmd_Ventas2 no se ordena por \"Stock\"; puede ser Nombre, Seccion, Codigo.");
    EXPECT_EQ(rechazo(Dialogo::OrdenClientes),
              "cmd_Ventas2 no se ordena por \"Stock\"; puede ser Nombre, Ingreso, nacimiento, UltimaVisita, Apellidos.");
    EXPECT_EQ(rechazo(Dialogo::FiltrosProductos), "");
    responde(Respuesta::Orden, u"Apellidos"_s);
    EXPECT_EQ(rechazo(Dialogo::FiltrosProductos),
              "cmd_Ventas2 no se ordena por \"Apellidos\"; puede ser Nombre, Seccion, Proveedor, Codigo, Stock.");
}

TEST_F(DialogosDeLoteTest, TheOrderIsTheFirstOfTheListUnlessItIsGivenInAnyCase)
{
    muestra(Dialogo::OrdenServicios);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Nombre"_s);
    responde(Respuesta::Orden, u"codigo"_s);
    EXPECT_EQ(muestra(Dialogo::OrdenServicios), u""_s);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Codigo"_s);
    responde(Respuesta::Orden, u"NACIMIENTO"_s);
    muestra(Dialogo::OrdenClientes);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"nacimiento"_s);
    EXPECT_FALSE(m_contexto.filtros.soloConEmail);
}

TEST_F(DialogosDeLoteTest, ClientsWithEMailComeByName)
{
    responde(Respuesta::SoloEmail);
    responde(Respuesta::Orden, u"Ingreso"_s);
    EXPECT_EQ(muestra(Dialogo::OrdenClientes), u"--orden"_s);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Nombre"_s);
    EXPECT_TRUE(m_contexto.filtros.soloConEmail);
}

TEST_F(DialogosDeLoteTest, LostClientsHaveAFirstDayAlone)
{
    m_contexto.FechaHasta = *Fecha::deCalendario(2020, 1, 1);
    respondeDia(Respuesta::Desde, 12, 31);
    respondeDia(Respuesta::Hasta, 12, 31);
    EXPECT_EQ(muestra(Dialogo::ClientesPerdidos), u"--hasta"_s);
    EXPECT_EQ(m_contexto.FechaDesde, *Fecha::deCalendario(2024, 12, 31));
    EXPECT_EQ(m_contexto.FechaHasta, *Fecha::deCalendario(2020, 1, 1));
}

TEST_F(DialogosDeLoteTest, MonthAndYearAreTodaysUnlessTheyAreGiven)
{
    m_contexto.CajaCompleta = true;
    muestra(Dialogo::Meses);
    EXPECT_EQ(m_contexto.filtros.mes, 3);
    EXPECT_EQ(m_contexto.filtros.anio, 2024);
    EXPECT_FALSE(m_contexto.CajaCompleta);
    responde(Respuesta::Mes, qint32{12});
    responde(Respuesta::Anio, qint32{2023});
    responde(Respuesta::Completa);
    EXPECT_EQ(muestra(Dialogo::Meses), u""_s);
    EXPECT_EQ(m_contexto.filtros.mes, 12);
    EXPECT_EQ(m_contexto.filtros.anio, 2023);
    EXPECT_TRUE(m_contexto.CajaCompleta);
}

/// The product filters show names, so they need a shop.
class FiltrosProductosTest : public testing::Test
{
protected:
    FiltrosProductosTest()
    {
        m_tienda.ejecuta({u"insert into proveedores (codigo, nombre) values (3, 'Ñandú S.L.')"_s,
                          u"insert into proveedores (codigo, nombre, borrar) values (4, 'Vieja', -1)"_s,
                          u"insert into seccion (codigo, nombre) values (5, 'Champús')"_s,
                          u"insert into seccion (codigo) values (6)"_s});
        m_contexto.ConexionTienda.Open(u"dsn=TiendaKestrane"_s);
        m_pedido.fila = catalogue::busca(u"cmd_Generales2");
        Filtros& filtros = m_contexto.filtros;
        filtros.seccion = filtros.proveedor = filtros.proveedorBajoMinimos = 1;
        filtros.claseProducto = u"V"_s;
        filtros.titulo = u"antes"_s;
    }

    QString muestra(std::map<Respuesta, Valor> respuestas)
    {
        m_pedido.respuestas = std::move(respuestas);
        DialogosDeLote dialogos{m_contexto, m_pedido, m_reloj};
        dialogos.Muestra(Dialogo::FiltrosProductos, {});
        return dialogos.ignoradas().join(u' ');
    }

    struct Eleccion
    {
        qint32 seccion = Todos;
        qint32 proveedor = Todos;
        qint32 proveedorBajoMinimos = Todos;
        bool bajoMinimos = false;
        QStringView clase = u"";
    };

    void espera(const QString& titulo, const Eleccion& filtros)
    {
        EXPECT_EQ(m_contexto.filtros.titulo, titulo);
        EXPECT_EQ(m_contexto.filtros.seccion, filtros.seccion);
        EXPECT_EQ(m_contexto.filtros.proveedor, filtros.proveedor);
        EXPECT_EQ(m_contexto.filtros.proveedorBajoMinimos, filtros.proveedorBajoMinimos);
        EXPECT_EQ(m_contexto.filtros.bajoMinimos, filtros.bajoMinimos);
        EXPECT_EQ(m_contexto.filtros.claseProducto, filtros.clase);
    }

    TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
    PedidoInforme m_pedido;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15)};
};

TEST_F(FiltrosProductosTest, ACodeThatThePanelDoesNotShowIsRefused)
{
    EXPECT_THROW(muestra({{Respuesta::Proveedor, qint32{4}}}), PeticionImposible);
    EXPECT_THROW(muestra({{Respuesta::Seccion, qint32{99}}}), PeticionImposible);
}

TEST_F(FiltrosProductosTest, WithoutAnAnswerAllProductsAreListedByName)
{
    EXPECT_EQ(muestra({}), u""_s);
    espera(u"LISTADO X TIPO DE PRODUCTOS = Todos"_s, {});
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Nombre"_s);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FiltrosProductosTest, EachChoiceHasItsTitleAndClearsTheOthers)
{
    muestra({{Respuesta::Proveedor, qint32{3}}});
    espera(u"LISTADO DE PRODUCTOS X PROVEEDOR = Ñandú S.L."_s, {.proveedor = 3});
    muestra({{Respuesta::Proveedor, qint32{-1}}});
    espera(u"LISTADO DE PRODUCTOS X PROVEEDOR = Todos los Proveedores"_s, {});
    muestra({{Respuesta::Seccion, qint32{5}}});
    espera(u"LISTADO DE PRODUCTOS X SECCIONES = Champús"_s, {.seccion = 5});
    muestra({{Respuesta::Seccion, qint32{6}}});
    espera(u"LISTADO DE PRODUCTOS X SECCIONES = "_s, {.seccion = 6});
    muestra({{Respuesta::Clase, u"CI"_s}});
    espera(u"LISTADO X TIPO DE PRODUCTOS = Productos de Consumo Interno"_s, {.clase = u"CI"});
    muestra({{Respuesta::Clase, u"V"_s}});
    espera(u"LISTADO X TIPO DE PRODUCTOS = Productos de Venta"_s, {.clase = u"V"});
    muestra({{Respuesta::Clase, u"A"_s}});
    espera(u"LISTADO X TIPO DE PRODUCTOS = Ambos"_s, {.clase = u"A"});
}

TEST_F(FiltrosProductosTest, OfTwoChoicesOneCountsAndTheOtherIsTold)
{
    EXPECT_EQ(muestra({{Respuesta::Proveedor, qint32{3}}, {Respuesta::Seccion, qint32{5}}}), u"--seccion"_s);
}

TEST_F(FiltrosProductosTest, UnderTheMinimumThereIsASupplierOfItsOwn)
{
    EXPECT_EQ(muestra({{Respuesta::BajoMinimos, true}, {Respuesta::Proveedor, qint32{3}}}), u""_s);
    espera(u"LISTADO DE PRODUCTOS BAJO MINIMOX Proveedor = Ñandú S.L."_s, {.proveedorBajoMinimos = 3, .bajoMinimos = true});
    muestra({{Respuesta::BajoMinimos, true}});
    espera(u"LISTADO DE PRODUCTOS BAJO MINIMOX Proveedor = Todos los Proveedores"_s, {.bajoMinimos = true});
}

TEST_F(FiltrosProductosTest, TheListingOfThoseUnderTheMinimumPassesOverItsFilters)
{
    m_contexto.SoloBajoMinimos = true;
    EXPECT_EQ(muestra({{Respuesta::Proveedor, qint32{3}}, {Respuesta::Orden, u"stock"_s}}), u"--proveedor"_s);
    espera(u"antes"_s, {.bajoMinimos = true});
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Stock"_s);
}

TEST_F(DialogosDeLoteTest, LabelsForClientsAreThoseOfThePanelAsItIsOpened)
{
    m_contexto.filtros.etiquetas.optTodos = true;
    EXPECT_EQ(muestra(Dialogo::EtiquetasClientes), u""_s);
    EtiquetasClientes alAbrir;
    alAbrir.OptGeneral = true;
    alAbrir.desdeCumple = alAbrir.HastaCumple = *Fecha::deCalendario(2024, 3, 15);
    EXPECT_TRUE(m_contexto.filtros.etiquetas == alAbrir);
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

} // namespace
} // namespace kestrane::lote
