#include "pipeline/catalogue/ejecutor_de_prueba.h"

/// What single buttons do beyond the common road.
namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::EjecutorTest;

TEST_F(EjecutorTest, WhereSeveralDaysAreNotAllowedADailyReportIsForTodayWithoutItsDialog)
{
    m_contexto.PermiteListadoVariosDias = false;
    m_contexto.CajaCompleta = m_contexto.FormatoTicket = true;
    const QStringList sucesos = ejecuta(u"cmd_Caja1");
    EXPECT_EQ(sucesos.first(3), (QStringList{u"repinta"_s, u"parar"_s, u"construye[]"_s}));
    EXPECT_EQ(m_contexto.FechaDesde, dia(2024, 3, 15));
    EXPECT_EQ(m_contexto.FechaHasta, dia(2024, 3, 15));
    EXPECT_TRUE(m_contexto.FiltroAceptado && m_contexto.CajaCompleta && m_contexto.FormatoTicket);
    EXPECT_EQ(ejecuta(u"cmd_Ventas2").constFirst(), u"frmFechas"_s);
}

TEST_F(EjecutorTest, AReportOfTodayKeepsTheFormatOfTheReportBefore)
{
    m_contexto.PermiteListadoVariosDias = false;
    m_contexto.FormatoTicket = true;
    EXPECT_EQ(ejecuta(u"cmd_Caja3"), (QStringList{u"repinta"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                  u"impresora Tira"_s, u"imprime K_caja_general_ticket.rpt"_s, u"cerrar"_s}));
    EXPECT_TRUE(m_contexto.FormatoTicket);
}

TEST_F(EjecutorTest, AllDailyReportsSkipTheirDialogWhereSeveralDaysAreNotAllowed)
{
    m_contexto.PermiteListadoVariosDias = false;
    m_contexto.TipoPrograma = u"TPV"_s;
    const auto deHoy = [](const QString& impresora, const QString& fichero) {
        return QStringList{u"repinta"_s,
                           u"parar"_s,
                           u"construye[]"_s,
                           u"drena"_s,
                           u"drena"_s,
                           u"impresora "_s + impresora,
                           u"imprime "_s + fichero,
                           u"cerrar"_s};
    };
    EXPECT_EQ(ejecuta(u"cmd_Caja1"), deHoy(u"Laser"_s, u"T_caja_diariageneral2.rpt"_s));
    EXPECT_EQ(ejecuta(u"cmdCajaDiariaResumido"), deHoy(u"Laser"_s, u"T_caja_diariaResumido.rpt"_s));
    EXPECT_EQ(ejecuta(u"cmd_Caja3"), deHoy(u"Laser"_s, u"K_caja_general.rpt"_s));
    EXPECT_EQ(ejecuta(u"cmd_Caja4"), deHoy(u"Tira"_s, u"K_caja_tickets.rpt"_s));
    EXPECT_EQ(ejecuta(u"cmdAlbaranes"), deHoy(u"Laser"_s, u"T_Albaranes.rpt"_s));
}

TEST_F(EjecutorTest, TheReportOfTodayLoopsOverTheStoresUnlessOneIsChosen)
{
    m_contexto.PermiteListadoVariosDias = false;
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(construidas(u"cmd_Caja1"), (QStringList{u"construye[Sur]"_s, u"construye[Centro]"_s}));
    EXPECT_EQ(construidas(u"cmd_Caja1"), QStringList{u"construye[Centro]"_s});
}

TEST_F(EjecutorTest, WithoutAClientTheClientHistoryEndsAtItsSearch)
{
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.ClienteBuscado = u"-1"_s; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas3"), QStringList{u"frmBuscar"_s});
    EXPECT_EQ(m_contexto.ModoBusqueda, u"Cl"_s);
}

TEST_F(EjecutorTest, TheClientHistoryIsBuiltEvenWhenItsDialogIsLeft)
{
    m_pantalla.alMostrar = [this](Dialogo) {
        m_contexto.ClienteBuscado = u"17"_s;
        m_contexto.FiltroAceptado = false;
    };
    EXPECT_EQ(ejecuta(u"cmd_Ventas3"),
              (QStringList{u"frmBuscar"_s, u"frmHistoricoXClientes"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                           u"impresora Laser"_s, u"imprime K_Listado_Historico.rpt"_s, u"cerrar"_s}));
    EXPECT_EQ(m_contexto.filtros.cliente, u"17"_s);
}

TEST_F(EjecutorTest, TheSearchOfTheClientHistoryIsForClientsAndItsResultIsThereWhenTheBuilderRuns)
{
    QStringList vistos;
    m_pantalla.alMostrar = [&](Dialogo) {
        vistos += m_contexto.ModoBusqueda;
        m_contexto.ClienteBuscado = u"0017"_s;
    };
    m_pantalla.alConstruir = [&] { vistos += m_contexto.filtros.cliente; };
    m_contexto.ModoBusqueda = u"Pr"_s;
    ejecuta(u"cmd_Ventas3");
    EXPECT_EQ(vistos, (QStringList{u"Cl"_s, u"Cl"_s, u"0017"_s}));
}

TEST_F(EjecutorTest, ASearchThatIsLeftKeepsTheClientFoundBefore)
{
    m_contexto.ClienteBuscado = u"17"_s;
    m_pantalla.alMostrar = [](Dialogo) {};
    EXPECT_EQ(ejecuta(u"cmd_Ventas3").first(4),
              (QStringList{u"frmBuscar"_s, u"frmHistoricoXClientes"_s, u"parar"_s, u"construye[]"_s}));
    EXPECT_EQ(m_contexto.filtros.cliente, u"17"_s);
}

TEST_F(EjecutorTest, ProductsSoldOpenTheirSecondDialogThoughTheFirstWasLeftAndAskThereAlone)
{
    m_pantalla.alMostrar = [this](Dialogo mostrado) { m_contexto.FiltroAceptado = mostrado == Dialogo::ProductosVendidos; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas11").first(3), (QStringList{u"frmFechas"_s, u"frmProductosVendidos"_s, u"parar"_s}));
    m_pantalla.alMostrar = [this](Dialogo mostrado) { m_contexto.FiltroAceptado = mostrado == Dialogo::Fechas; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas11"), (QStringList{u"frmFechas"_s, u"frmProductosVendidos"_s}));
}

TEST_F(EjecutorTest, TheEmployeeHistoryTakesBuilderAndLayoutFromTheAnswer)
{
    m_pantalla.alMostrar = [this](Dialogo) {
        m_contexto.FiltroAceptado = m_contexto.filtros.totalizado = true;
        m_contexto.filtros.empleado = -1;
    };
    EXPECT_EQ(ejecuta(u"cmd_Ventas6").sliced(1),
              (QStringList{u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                           u"imprime K_ListadoHisXEmp1.rpt"_s, u"cerrar"_s}));
    m_contexto.filtros.totalizado = false;
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = true; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas6").sliced(1),
              (QStringList{u"parar"_s, u"construye[]"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                           u"imprime K_ListadoHisXEmp3.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, TheHistoriesHaveNoTicketFormat)
{
    m_pantalla.alMostrar = [this](Dialogo) {
        m_contexto.ClienteBuscado = u"17"_s;
        m_contexto.FiltroAceptado = m_contexto.FormatoTicket = true;
    };
    const auto salida = [this](QStringView control) { return ejecuta(control).filter(u"imp"_s); };
    EXPECT_EQ(salida(u"cmd_Ventas3"), (QStringList{u"impresora Laser"_s, u"imprime K_Listado_Historico.rpt"_s}));
    EXPECT_EQ(salida(u"cmd_Ventas6"), (QStringList{u"impresora Laser"_s, u"imprime K_ListadoHisXEmp3.rpt"_s}));
}

TEST_F(EjecutorTest, BirthdaysAreClientsByBirthdayAndTheClientListingClearsTheirMark)
{
    m_pantalla.alMostrar = [this](Dialogo) {
        EXPECT_TRUE(m_contexto.filtros.cumpleanios);
        m_contexto.FiltroAceptado = true;
    };
    EXPECT_EQ(ejecuta(u"cmd_Generales13").constFirst(), u"frmFechas"_s);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"nacimiento"_s);
    EXPECT_EQ(m_pantalla.ultimoTitulo, u"Clientes que cumplen años"_s);
    m_pantalla.alMostrar = [](Dialogo) {};
    ejecuta(u"cmd_Generales1");
    EXPECT_FALSE(m_contexto.filtros.cumpleanios);
}

TEST_F(EjecutorTest, TheTwoProductListingsDifferInTheMinimumAlone)
{
    bool enElDialogo = false;
    bool enElConstructor = false;
    m_pantalla.alMostrar = [&](Dialogo) {
        enElDialogo = m_contexto.SoloBajoMinimos;
        m_contexto.FiltroAceptado = true;
    };
    m_pantalla.alConstruir = [&] { enElConstructor = m_contexto.SoloBajoMinimos; };
    const QStringList bajoMinimos = ejecuta(u"cmd_Generales14");
    EXPECT_TRUE(enElDialogo && enElConstructor);
    const QStringList todos = ejecuta(u"cmd_Generales2");
    EXPECT_FALSE(enElDialogo || enElConstructor);
    EXPECT_EQ(todos, bajoMinimos);
    EXPECT_EQ(todos.constFirst(), u"frmFiltrosProductos"_s);
}

TEST_F(EjecutorTest, MoneyOnDepositHasItsTitleWhenItsBuilderRuns)
{
    QString titulo;
    m_pantalla.alConstruir = [&] { titulo = m_contexto.filtros.titulo; };
    EXPECT_EQ(ejecuta(u"cmd_GeneralesCliDinDep"),
              (QStringList{u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                           u"imprime K_ClientesDineroDeposito.rpt"_s, u"cerrar"_s}));
    EXPECT_EQ(titulo, u"Clientes con Dinero en Deposito"_s);
}

TEST_F(EjecutorTest, MoneyOnDepositAsksTheServerForItsStoreAndRunsOnce)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(u"cmd_GeneralesCliDinDep").first(3), (QStringList{u"frmSelTienda"_s, u"parar"_s, u"construye[]"_s}));
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.TiendaSeleccionada = u"Centro"_s; };
    EXPECT_EQ(construidas(u"cmd_GeneralesCliDinDep"), QStringList{u"construye[Centro]"_s});
}

TEST_F(EjecutorTest, ExpiredVouchersSayThatTheyMayTakeMinutesAndActiveOnesDoNot)
{
    EXPECT_EQ(ejecuta(u"Command22"), (QStringList{u"aviso"_s, u"parar"_s, u"drena"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                  u"impresora Laser"_s, u"imprime K_Bonos.rpt"_s, u"cerrar"_s, u"sin aviso"_s}));
    EXPECT_EQ(ejecuta(u"Command23"), (QStringList{u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                                                  u"imprime K_Bonos.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, ExpiredVouchersOnTheServerShowTheirNoticeOnceForAllStores)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    const auto informe = [](const QString& tienda) {
        return QStringList{u"construye["_s + tienda + u']', u"drena"_s, u"drena"_s, u"impresora Laser"_s, u"imprime K_Bonos.rpt"_s};
    };
    EXPECT_EQ(ejecuta(u"Command22"), QStringList({u"frmSelTienda"_s, u"aviso"_s, u"parar"_s, u"drena"_s}) + informe(u"Sur"_s) +
                                         informe(u"Centro"_s) + QStringList({u"cerrar"_s, u"sin aviso"_s}));
}

TEST_F(EjecutorTest, PackSalesPutTheCaptionOfAnotherButtonOnTheirFormats)
{
    ejecuta(u"cmd_Ventas4");
    EXPECT_EQ(m_pantalla.ultimoTitulo, u"<cmd_Ventas1>"_s);
}

TEST_F(EjecutorTest, AReprintIsAReportOnlyWhenAnInvoiceWasChosen)
{
    m_contexto.ReimprimirFactura = true;
    EXPECT_EQ(ejecuta(u"cmd_Caja5"), (QStringList{u"frmReImprimir"_s, u"parar"_s, u"cerrar"_s}));
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = m_contexto.ReimprimirFactura = true; };
    EXPECT_EQ(ejecuta(u"cmd_Caja5"), (QStringList{u"frmReImprimir"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                  u"impresora Laser"_s, u"imprime K_factura.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, AReprintOnTheServerAsksForTheStoreAndThenForgetsTheInvoiceBefore)
{
    enServidorCon({u"Sur"_s});
    m_contexto.ReimprimirFactura = true;
    m_pantalla.alMostrar = [this](Dialogo mostrado) {
        EXPECT_EQ(m_contexto.ReimprimirFactura, mostrado == Dialogo::SelTienda);
        m_contexto.FiltroAceptado = true;
    };
    EXPECT_EQ(ejecuta(u"cmd_Caja5"), (QStringList{u"frmSelTienda"_s, u"frmReImprimir"_s, u"parar"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, AReprintThatIsLeftAfterAnAcceptedDialogShowsTheProgressWindowAndNothingElse)
{
    m_contexto.FiltroAceptado = m_contexto.ReimprimirFactura = true;
    m_pantalla.alMostrar = [](Dialogo) {};
    EXPECT_EQ(ejecuta(u"cmd_Caja5"), (QStringList{u"frmReImprimir"_s, u"parar"_s, u"cerrar"_s}));
    m_contexto.FiltroAceptado = false;
    EXPECT_EQ(ejecuta(u"cmd_Caja5"), QStringList{u"frmReImprimir"_s});
}

TEST_F(EjecutorTest, DeliveryNotesAreBuiltInEveryFlavourAndShownInRetailAlone)
{
    m_contexto.TipoPrograma = u"PELUQUERIA"_s;
    EXPECT_EQ(ejecuta(u"cmdAlbaranes"),
              (QStringList{u"frmFechas"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"cerrar"_s}));
    m_contexto.TipoPrograma = u"TPV"_s;
    EXPECT_EQ(ejecuta(u"cmdAlbaranes").sliced(5), (QStringList{u"impresora Laser"_s, u"imprime T_Albaranes.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, LabelsForClientsAreBuiltFromThePanelThatIsOpen)
{
    EtiquetasClientes elegidas;
    elegidas.OptCPostal = true;
    elegidas.txtCPostal = u"28013"_s;
    EtiquetasClientes vistas;
    m_pantalla.alMostrar = [&](Dialogo) { m_contexto.filtros.etiquetas = elegidas; };
    m_pantalla.alConstruir = [&] { vistas = m_contexto.filtros.etiquetas; };
    EXPECT_EQ(ejecuta(u"Command10"), (QStringList{u"frAviso"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                  u"impresora Laser"_s, u"imprime K_etiquetas.rpt"_s, u"cerrar"_s}));
    EXPECT_TRUE(vistas == elegidas);
}

TEST_F(EjecutorTest, LabelsForClientsAskTheServerForTheStoreBeforeThePanelCloses)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(u"Command10").first(4), (QStringList{u"frmSelTienda"_s, u"frAviso"_s, u"parar"_s, u"construye[]"_s}));
    EXPECT_EQ(construidas(u"Command10"), QStringList{u"construye[]"_s});
}

} // namespace
} // namespace kestrane::catalogue
