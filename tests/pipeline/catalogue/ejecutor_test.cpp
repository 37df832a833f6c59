#include "pipeline/catalogue/ejecutor_de_prueba.h"

namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::EjecutorTest;
using prueba::fila;

void falla(Listados&)
{
    throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
}

const QStringList NoEsta{u"Listados: Este listado todavía no está disponible."_s};

TEST_F(EjecutorTest, ARowWhoseBuilderDoesNotExistSaysSoAndDoesNothingElse)
{
    enServidorCon({});
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Ventas9"), NoEsta);
    FilaCatalogo productos = fila(u"cmd_Ventas5");
    productos.constructores[0].constructor = nullptr;
    EXPECT_EQ(ejecuta(productos), NoEsta);
}

TEST_F(EjecutorTest, SoDoesARowWhoseChartDoesNotExist)
{
    EXPECT_EQ(ejecutaComoEsta(u"Command7"), NoEsta);
}

TEST_F(EjecutorTest, SoDoesARowOfWhichADialogDoesNotExist)
{
    m_pantalla.faltan = {Dialogo::ProductosVendidos};
    EXPECT_EQ(ejecuta(u"cmd_Ventas11"), NoEsta);
    EXPECT_EQ(ejecuta(u"cmd_Ventas2").constFirst(), u"frmFechas"_s);
    m_pantalla.faltan = {Dialogo::Meses};
    EXPECT_EQ(ejecuta(u"Command7"), NoEsta);
}

TEST_F(EjecutorTest, ADialogThatIsSkippedIsNotMissed)
{
    m_pantalla.faltan = {Dialogo::Fechas};
    m_contexto.PermiteListadoVariosDias = false;
    EXPECT_EQ(ejecuta(u"cmd_Caja1").constFirst(), u"repinta"_s);
    m_contexto.PermiteListadoVariosDias = true;
    EXPECT_EQ(ejecuta(u"cmd_Caja1"), QStringList{u"Listados: Este listado todavía no está disponible."_s});
}

TEST_F(EjecutorTest, TheDialogOfTheStoresIsMissedOnTheServerAlone)
{
    m_pantalla.faltan = {Dialogo::SelTienda};
    EXPECT_EQ(ejecuta(u"cmd_Ventas9").constFirst(), u"parar"_s);
    enServidorCon({u"Sur"_s});
    EXPECT_EQ(ejecuta(u"cmd_Ventas9"), NoEsta);
    EXPECT_EQ(ejecuta(u"cmd_Ventas2").constFirst(), u"frmFechas"_s);
}

TEST_F(EjecutorTest, WhenTheOperatorLeavesTheDialogNothingMoreHappens)
{
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = false; };
    m_contexto.FiltroAceptado = true;
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"), QStringList{u"frmFechas"_s});
}

TEST_F(EjecutorTest, TheStandardActionHasItsOrder)
{
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"), (QStringList{u"frmFechas"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                    u"impresora Laser"_s, u"imprime K_formapago.rpt"_s, u"cerrar"_s}));
    EXPECT_EQ(m_pantalla.ultimoTitulo, u"<cmd_Ventas2>"_s);
}

TEST_F(EjecutorTest, ARowWithoutADialogDoesNotAskWhetherOneWasAccepted)
{
    EXPECT_FALSE(m_contexto.FiltroAceptado);
    EXPECT_EQ(ejecuta(u"cmd_Generales8"), (QStringList{u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                                                       u"imprime K_Secciones.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, ABuilderThatFailsEndsTheRunWithTheProgressWindowOpen)
{
    FilaCatalogo rota = fila(u"cmd_Generales8");
    rota.constructores[0].constructor = falla;
    EXPECT_THROW(ejecuta(rota), ErrorEjecucion);
    EXPECT_EQ(m_pantalla.sucesos, QStringList{u"parar"_s});
}

TEST_F(EjecutorTest, TheTicketFormatGoesToTheTicketPrinter)
{
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = m_contexto.FormatoTicket = true; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas1"), (QStringList{u"frmFechas+"_s, u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                    u"impresora Tira"_s, u"imprime K_porservicios_ticket.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, OnTheServerWithAllStoresAReportIsBuiltAndShownForEachInTheirOrder)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"),
              (QStringList{u"frmFechas"_s, u"parar"_s, u"construye[Sur]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                           u"imprime K_formapago.rpt"_s, u"construye[Centro]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                           u"imprime K_formapago.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, TheLoopLeavesTheLastStoreChosenAndTheNextReportIsLimitedToIt)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    ejecuta(u"cmd_Ventas2");
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
    EXPECT_EQ(construidas(u"cmd_Ventas2"), QStringList{u"construye[Centro]"_s});
}

TEST_F(EjecutorTest, WithAStoreChosenOrAwayFromTheServerThereIsNoLoop)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    EXPECT_EQ(construidas(u"cmd_Ventas2"), QStringList{u"construye[Sur]"_s});
    m_contexto.TiendaSeleccionada.clear();
    m_contexto.MultiTienda = false;
    EXPECT_EQ(construidas(u"cmd_Ventas2"), QStringList{u"construye[]"_s});
}

TEST_F(EjecutorTest, RowsWithoutTheMarkRunOnceOnTheServerToo)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(construidas(u"cmd_Ventas4"), QStringList{u"construye[]"_s});
    EXPECT_EQ(construidas(u"cmd_Generales11"), QStringList{u"construye[]"_s});
}

TEST_F(EjecutorTest, ALoopWithoutAListOfStoresIsError9BehindTheProgressWindow)
{
    enServidorCon({});
    try {
        ejecuta(u"cmd_Ventas2");
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::IndiceFueraDeIntervalo);
    }
    EXPECT_EQ(m_pantalla.sucesos, (QStringList{u"frmFechas"_s, u"parar"_s}));
}

TEST_F(EjecutorTest, OnTheServerAMarkedRowAsksForTheStoreBeforeAnyDialog)
{
    EXPECT_EQ(ejecuta(u"cmd_Generales1").constFirst(), u"FrmOrdenClientes"_s);
    enServidorCon({u"Sur"_s, u"Centro"_s});
    m_pantalla.alMostrar = [this](Dialogo mostrado) {
        if (mostrado == Dialogo::SelTienda)
            m_contexto.TiendaSeleccionada = u"Centro"_s;
        else
            m_contexto.FiltroAceptado = true;
    };
    EXPECT_EQ(ejecuta(u"cmd_Generales1").first(4),
              (QStringList{u"frmSelTienda"_s, u"FrmOrdenClientes"_s, u"parar"_s, u"construye[Centro]"_s}));
    EXPECT_EQ(ejecuta(u"cmd_Ventas9").first(2), (QStringList{u"frmSelTienda"_s, u"parar"_s}));
}

TEST_F(EjecutorTest, AChartCollectsItsDataWhenItsWindowAsksAndHasNeitherPrinterNorStagingRows)
{
    EXPECT_EQ(ejecuta(u"Command7"),
              (QStringList{u"frmMeses"_s, u"parar"_s, u"grafico FacturacionMensual"_s, u"construye[]"_s, u"cerrar"_s}));
    EXPECT_EQ(m_pantalla.ultimaMatriz, (MatrizGrafico{{u"mar 24"_s, u"12,5"_s}}));
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(u"Command6"), (QStringList{u"frmSelTienda"_s, u"parar"_s, u"grafico FacturacionAnual"_s, u"construye[Sur]"_s,
                                                 u"grafico FacturacionAnual"_s, u"construye[Centro]"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, OtherButtonsOpenTheirWindowsOrDoNothing)
{
    const auto hace = [](AccionMenu accion) { return QStringList{u"abre "_s + prueba::nombre(accion)}; };
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Generales21"), hace(AccionMenu::Carteles));
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Generales12"), hace(AccionMenu::EtiquetasDeClientes));
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Ayuda"), hace(AccionMenu::Ayuda));
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Salir"), hace(AccionMenu::Salir));
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Generales22"), hace(AccionMenu::EtiquetasDeProductos));
    m_contexto.TipoPrograma = u"TALLACOLOR"_s;
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Generales22"), hace(AccionMenu::EtiquetasDeProductos));
    m_contexto.TipoPrograma = u"SUPERMERCADO"_s;
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Generales22"), hace(AccionMenu::EtiquetasDeProductosTPV));
    EXPECT_EQ(ejecutaComoEsta(u"cmd_Estadisticas6"), QStringList{});
}

} // namespace
} // namespace kestrane::catalogue
