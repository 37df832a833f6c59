#include "pipeline/catalogue/ejecutor.h"

#include "pipeline/catalogue/catalogo.h"
#include "pipeline/catalogue/pantalla_grabada.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;
using prueba::PantallaGrabada;

void construye(Listados& listados)
{
    listados.progreso.IncrementaBarra();
}

void construyeDosVeces(Listados& listados)
{
    construye(listados);
    construye(listados);
}

void falla(Listados&)
{
    throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
}

/// A row of the catalogue with builders of the test's own: the first shows itself once, the second twice.
FilaCatalogo fila(QStringView control)
{
    FilaCatalogo copia = *busca(control);
    copia.constructores[0].constructor = construye;
    copia.constructores[1].constructor = construyeDosVeces;
    return copia;
}

QString dialogo(Dialogo dialogo)
{
    return u"dialogo %1"_s.arg(static_cast<int>(dialogo));
}

class EjecutorTest : public testing::Test
{
protected:
    EjecutorTest()
    {
        m_contexto.PermiteListadoVariosDias = true;
        m_contexto.ImpresoraListados = u"Laser"_s;
        m_contexto.ImpresoraTicket = u"Tira"_s;
    }

    void enServidorCon(const QStringList& tiendas)
    {
        m_contexto.NombreTienda = u"Servidor"_s;
        m_contexto.MultiTienda = true;
        if (tiendas.isEmpty())
            return;
        m_contexto.Tiendas.reserva(static_cast<int>(tiendas.size()) + 1);
        m_contexto.Tiendas[0].Texto = u"Todas"_s;
        for (int i = 0; i < tiendas.size(); ++i)
            m_contexto.Tiendas[i + 1].Texto = tiendas[i];
    }

    QStringList ejecuta(const FilaCatalogo& elegida)
    {
        m_pantalla.sucesos.clear();
        Ejecutor{m_contexto, m_pantalla.pantalla(), m_reloj}.ejecuta(elegida);
        return m_pantalla.sucesos;
    }
    QStringList ejecuta(QStringView control) { return ejecuta(fila(control)); }

    void dejaLosDialogos()
    {
        m_pantalla.alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = false; };
    }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
    PantallaGrabada m_pantalla{m_contexto};
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15, 18, 30)};
};

TEST_F(EjecutorTest, ARowWhoseBuilderDoesNotExistSaysSoAndDoesNothingElse)
{
    enServidorCon({});
    EXPECT_EQ(ejecuta(*busca(u"cmd_Ventas9")),
              QStringList{u"Listados: El listado \"Pendientes de Pago\" todavía no está disponible."_s});
}

TEST_F(EjecutorTest, WhenTheOperatorLeavesTheDialogNothingMoreHappens)
{
    dejaLosDialogos();
    m_contexto.FiltroAceptado = true;
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"), QStringList{dialogo(Dialogo::Fechas)});
}

TEST_F(EjecutorTest, TheStandardActionHasItsOrder)
{
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"), (QStringList{dialogo(Dialogo::Fechas), u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                    u"impresora Laser"_s, u"imprime K_formapago.rpt"_s, u"cerrar"_s}));
    EXPECT_EQ(m_pantalla.ultimoTitulo, u"Formas de Pago"_s);
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
    EXPECT_EQ(ejecuta(u"cmd_Ventas1"),
              (QStringList{dialogo(Dialogo::FechasConFormatos), u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                           u"impresora Tira"_s, u"imprime K_porservicios_ticket.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, OnTheServerWithAllStoresAReportIsBuiltAndShownForEachInTheirOrder)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(u"cmd_Ventas2"),
              (QStringList{dialogo(Dialogo::Fechas), u"parar"_s, u"construye[Sur]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                           u"imprime K_formapago.rpt"_s, u"construye[Centro]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                           u"imprime K_formapago.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, TheLoopLeavesTheLastStoreChosenAndTheNextReportIsLimitedToIt)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    ejecuta(u"cmd_Ventas2");
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
    EXPECT_EQ(ejecuta(u"cmd_Ventas2").filter(u"construye"_s), QStringList{u"construye[Centro]"_s});
}

TEST_F(EjecutorTest, WithAStoreChosenOrAwayFromTheServerThereIsNoLoop)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    EXPECT_EQ(ejecuta(u"cmd_Ventas2").filter(u"construye"_s), QStringList{u"construye[Sur]"_s});
    m_contexto.TiendaSeleccionada.clear();
    m_contexto.MultiTienda = false;
    EXPECT_EQ(ejecuta(u"cmd_Ventas2").filter(u"construye"_s), QStringList{u"construye[]"_s});
}

TEST_F(EjecutorTest, RowsWithoutTheMarkRunOnceOnTheServerToo)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(u"cmd_Ventas4").filter(u"construye"_s), QStringList{u"construye[]"_s});
    EXPECT_EQ(ejecuta(u"cmd_Generales11").filter(u"construye"_s), QStringList{u"construye[]"_s});
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
    EXPECT_EQ(m_pantalla.sucesos, (QStringList{dialogo(Dialogo::Fechas), u"parar"_s}));
}

TEST_F(EjecutorTest, WhereSeveralDaysAreNotAllowedADailyReportIsForTodayWithoutItsDialog)
{
    m_contexto.PermiteListadoVariosDias = false;
    m_contexto.CajaCompleta = m_contexto.FormatoTicket = true;
    const QStringList sucesos = ejecuta(u"cmd_Caja1");
    EXPECT_EQ(sucesos.first(3), (QStringList{u"repinta"_s, u"parar"_s, u"construye[]"_s}));
    EXPECT_EQ(m_contexto.FechaDesde, *Fecha::deCalendario(2024, 3, 15));
    EXPECT_EQ(m_contexto.FechaHasta, *Fecha::deCalendario(2024, 3, 15));
    EXPECT_TRUE(m_contexto.FiltroAceptado && m_contexto.CajaCompleta && m_contexto.FormatoTicket);
    EXPECT_EQ(ejecuta(u"cmd_Ventas2").constFirst(), dialogo(Dialogo::Fechas));
}

TEST_F(EjecutorTest, TheReportOfTodayLoopsOverTheStoresUnlessOneIsChosen)
{
    m_contexto.PermiteListadoVariosDias = false;
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(u"cmd_Caja1").filter(u"construye"_s), (QStringList{u"construye[Sur]"_s, u"construye[Centro]"_s}));
    EXPECT_EQ(ejecuta(u"cmd_Caja1").filter(u"construye"_s), QStringList{u"construye[Centro]"_s});
}

TEST_F(EjecutorTest, OnTheServerAMarkedRowAsksForTheStoreBeforeAnyDialog)
{
    EXPECT_EQ(ejecuta(u"cmd_Generales1").constFirst(), dialogo(Dialogo::OrdenClientes));
    enServidorCon({u"Sur"_s, u"Centro"_s});
    m_pantalla.alMostrar = [this](Dialogo mostrado) {
        if (mostrado == Dialogo::SelTienda)
            m_contexto.TiendaSeleccionada = u"Centro"_s;
        else
            m_contexto.FiltroAceptado = true;
    };
    EXPECT_EQ(ejecuta(u"cmd_Generales1").first(4),
              (QStringList{dialogo(Dialogo::SelTienda), dialogo(Dialogo::OrdenClientes), u"parar"_s, u"construye[Centro]"_s}));
    EXPECT_EQ(ejecuta(u"cmd_Ventas9").first(2), (QStringList{dialogo(Dialogo::SelTienda), u"parar"_s}));
}

TEST_F(EjecutorTest, WithoutAClientTheClientHistoryEndsAtItsSearch)
{
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.ClienteBuscado = u"-1"_s; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas3"), QStringList{dialogo(Dialogo::Buscar)});
    EXPECT_EQ(m_contexto.ModoBusqueda, u"Cl"_s);
}

TEST_F(EjecutorTest, TheClientHistoryIsBuiltEvenWhenItsDialogIsLeft)
{
    m_pantalla.alMostrar = [this](Dialogo) {
        m_contexto.ClienteBuscado = u"17"_s;
        m_contexto.FiltroAceptado = false;
    };
    EXPECT_EQ(ejecuta(u"cmd_Ventas3"),
              (QStringList{dialogo(Dialogo::Buscar), dialogo(Dialogo::HistoricoXClientes), u"parar"_s, u"construye[]"_s, u"drena"_s,
                           u"drena"_s, u"impresora Laser"_s, u"imprime K_Listado_Historico.rpt"_s, u"cerrar"_s}));
    EXPECT_EQ(m_contexto.filtros.cliente, 17);
}

TEST_F(EjecutorTest, ProductsSoldOpenTheirSecondDialogThoughTheFirstWasLeftAndAskThereAlone)
{
    m_pantalla.alMostrar = [this](Dialogo mostrado) { m_contexto.FiltroAceptado = mostrado == Dialogo::ProductosVendidos; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas11").first(3),
              (QStringList{dialogo(Dialogo::Fechas), dialogo(Dialogo::ProductosVendidos), u"parar"_s}));
    m_pantalla.alMostrar = [this](Dialogo mostrado) { m_contexto.FiltroAceptado = mostrado == Dialogo::Fechas; };
    EXPECT_EQ(ejecuta(u"cmd_Ventas11"), (QStringList{dialogo(Dialogo::Fechas), dialogo(Dialogo::ProductosVendidos)}));
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

TEST_F(EjecutorTest, BirthdaysAreClientsByBirthdayAndTheClientListingClearsTheirMark)
{
    m_pantalla.alMostrar = [this](Dialogo) {
        EXPECT_TRUE(m_contexto.filtros.cumpleanios);
        m_contexto.FiltroAceptado = true;
    };
    EXPECT_EQ(ejecuta(u"cmd_Generales13").constFirst(), dialogo(Dialogo::Fechas));
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"nacimiento"_s);
    EXPECT_EQ(m_pantalla.ultimoTitulo, u"Clientes que cumplen años"_s);
    m_pantalla.alMostrar = [](Dialogo) {};
    ejecuta(u"cmd_Generales1");
    EXPECT_FALSE(m_contexto.filtros.cumpleanios);
}

TEST_F(EjecutorTest, TheTwoProductListingsDifferInTheMinimumAlone)
{
    ejecuta(u"cmd_Generales14");
    EXPECT_TRUE(m_contexto.SoloBajoMinimos);
    ejecuta(u"cmd_Generales2");
    EXPECT_FALSE(m_contexto.SoloBajoMinimos);
}

TEST_F(EjecutorTest, MoneyOnDepositHasItsTitleBeforeTheBuilder)
{
    ejecuta(u"cmd_GeneralesCliDinDep");
    EXPECT_EQ(m_contexto.filtros.titulo, u"Clientes con Dinero en Deposito"_s);
}

TEST_F(EjecutorTest, ExpiredVouchersSayThatTheyMayTakeMinutesAndActiveOnesDoNot)
{
    EXPECT_EQ(ejecuta(u"Command22"), (QStringList{u"aviso"_s, u"parar"_s, u"drena"_s, u"construye[]"_s, u"drena"_s, u"drena"_s,
                                                  u"impresora Laser"_s, u"imprime K_Bonos.rpt"_s, u"cerrar"_s, u"sin aviso"_s}));
    EXPECT_EQ(ejecuta(u"Command23"), (QStringList{u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"impresora Laser"_s,
                                                  u"imprime K_Bonos.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, PackSalesPutTheCaptionOfAnotherButtonOnTheirFormats)
{
    ejecuta(u"cmd_Ventas4");
    EXPECT_EQ(m_pantalla.ultimoTitulo, u"Por Servicios"_s);
}

TEST_F(EjecutorTest, AReprintIsAReportOnlyWhenAnInvoiceWasChosen)
{
    m_contexto.ReimprimirFactura = true;
    EXPECT_EQ(ejecuta(u"cmd_Caja5"), (QStringList{dialogo(Dialogo::ReImprimir), u"parar"_s, u"cerrar"_s}));
    m_pantalla.alMostrar = [this](Dialogo) { m_contexto.FiltroAceptado = m_contexto.ReimprimirFactura = true; };
    EXPECT_EQ(ejecuta(u"cmd_Caja5"), (QStringList{dialogo(Dialogo::ReImprimir), u"parar"_s, u"construye[]"_s, u"drena"_s,
                                                  u"drena"_s, u"impresora Laser"_s, u"imprime K_factura.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, DeliveryNotesAreBuiltInEveryFlavourAndShownInRetailAlone)
{
    m_contexto.TipoPrograma = u"PELUQUERIA"_s;
    EXPECT_EQ(ejecuta(u"cmdAlbaranes"),
              (QStringList{dialogo(Dialogo::Fechas), u"parar"_s, u"construye[]"_s, u"drena"_s, u"drena"_s, u"cerrar"_s}));
    m_contexto.TipoPrograma = u"TPV"_s;
    EXPECT_EQ(ejecuta(u"cmdAlbaranes").sliced(5), (QStringList{u"impresora Laser"_s, u"imprime T_Albaranes.rpt"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, AChartIsShownWithoutBuilderOrPrinter)
{
    EXPECT_EQ(ejecuta(*busca(u"Command7")),
              (QStringList{dialogo(Dialogo::Meses), u"parar"_s, u"grafico FacturacionMensual[]"_s, u"cerrar"_s}));
    enServidorCon({u"Sur"_s, u"Centro"_s});
    EXPECT_EQ(ejecuta(*busca(u"Command6")),
              (QStringList{dialogo(Dialogo::SelTienda), u"parar"_s, u"grafico FacturacionAnual[Sur]"_s,
                           u"grafico FacturacionAnual[Centro]"_s, u"cerrar"_s}));
}

TEST_F(EjecutorTest, OtherButtonsOpenTheirWindowsOrDoNothing)
{
    const auto hace = [](AccionMenu accion) { return QStringList{u"accion %1"_s.arg(static_cast<int>(accion))}; };
    EXPECT_EQ(ejecuta(*busca(u"cmd_Generales21")), hace(AccionMenu::Carteles));
    EXPECT_EQ(ejecuta(*busca(u"cmd_Generales12")), hace(AccionMenu::EtiquetasDeClientes));
    EXPECT_EQ(ejecuta(*busca(u"cmd_Ayuda")), hace(AccionMenu::Ayuda));
    EXPECT_EQ(ejecuta(*busca(u"cmd_Salir")), hace(AccionMenu::Salir));
    EXPECT_EQ(ejecuta(*busca(u"cmd_Generales22")), hace(AccionMenu::EtiquetasDeProductos));
    m_contexto.TipoPrograma = u"TALLACOLOR"_s;
    EXPECT_EQ(ejecuta(*busca(u"cmd_Generales22")), hace(AccionMenu::EtiquetasDeProductos));
    m_contexto.TipoPrograma = u"SUPERMERCADO"_s;
    EXPECT_EQ(ejecuta(*busca(u"cmd_Generales22")), hace(AccionMenu::EtiquetasDeProductosTPV));
    EXPECT_EQ(ejecuta(*busca(u"cmd_Estadisticas6")), QStringList{});
}

} // namespace
} // namespace kestrane::catalogue
