#include "dialogs/frm_fechas.h"

#include "dialogs/forma_de_prueba.h"

#include <QTest>

#include <optional>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmFechasTest : public prueba::FormaTest
{
protected:
    FrmFechas& abre(bool conFormatos = false)
    {
        m_forma.emplace(m_servicios, PreparacionFechas{conFormatos, u"Por Servicios"_s});
        m_forma->carga();
        m_forma->show();
        return *m_forma;
    }
    void pulsa(const QString& nombre) { QTest::mouseClick(&control(*m_forma, nombre), Qt::LeftButton); }
    void pon(int desde, int hasta)
    {
        control<Calendario>(*m_forma, u"cld_Desde"_s).pon(dia(desde));
        control<Calendario>(*m_forma, u"cld_Hasta"_s).pon(dia(hasta));
    }
    bool formatosALaVista() { return control(*m_forma, u"frFormatos"_s).isVisible(); }

    std::optional<FrmFechas> m_forma;
};

TEST_F(FrmFechasTest, ItsLoadTakesItsStepsInTheirOrder)
{
    abre();
    EXPECT_EQ(m_aspecto.pasos, (QStringList{u"TraducirForm frmFechas"_s, u"AplicarLetra frmFechas"_s, u"PintarForm frmFechas"_s,
                                            u"EscalarForm frmFechas de 15360x11085 a 15360x11085"_s}));
    EXPECT_EQ(m_forma->windowTitle(), u"Fechas"_s);
}

TEST_F(FrmFechasTest, ItOpensOnTodayAndForgetsFormatCompletenessAndAcceptance)
{
    m_contexto.FormatoTicket = m_contexto.CajaCompleta = m_contexto.FiltroAceptado = true;
    m_contexto.FechaDesde = dia(1);
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    abre();
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Desde"_s).fecha(), dia(15));
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Hasta"_s).fecha(), dia(15));
    EXPECT_FALSE(m_contexto.FormatoTicket || m_contexto.CajaCompleta || m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.FechaDesde, dia(1));
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Sur"_s);
}

TEST_F(FrmFechasTest, AcceptingStoresThePeriodAndCloses)
{
    abre();
    pon(1, 15);
    pulsa(u"Command1"_s);
    EXPECT_FALSE(m_forma->isVisible());
    EXPECT_EQ(m_contexto.FechaDesde, dia(1));
    EXPECT_EQ(m_contexto.FechaHasta, dia(15));
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmFechasTest, AnEndBeforeTheBeginningIsToldAndTheDialogStays)
{
    abre();
    pon(15, 14);
    pulsa(u"Command1"_s);
    EXPECT_TRUE(m_forma->isVisible());
    EXPECT_EQ(m_mensajes.dichos, QStringList{u"Listados: La fecha hasta seleccionada es anterior a la fecha desde."_s});
    EXPECT_EQ(m_contexto.FechaDesde, Fecha{});
}

TEST_F(FrmFechasTest, LeavingKeepsThePeriodOfBefore)
{
    m_contexto.FechaDesde = dia(2);
    abre();
    pon(1, 15);
    pulsa(u"cmd_Salir"_s);
    EXPECT_FALSE(m_forma->isVisible());
    EXPECT_FALSE(m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.FechaDesde, dia(2));
}

TEST_F(FrmFechasTest, WithFormatsTheFirstAcceptanceShowsTheirPanelOverTheFilters)
{
    abre(true);
    EXPECT_FALSE(formatosALaVista());
    pon(15, 14); // not read yet
    pulsa(u"Command1"_s);
    EXPECT_TRUE(formatosALaVista());
    EXPECT_TRUE(m_mensajes.dichos.isEmpty());
    EXPECT_EQ(control(*m_forma, u"frFormatos"_s).geometry(), control(*m_forma, u"frFiltros"_s).geometry());
    EXPECT_EQ(control<QLabel>(*m_forma, u"lblFormatos"_s).text(), u"SELECCIONE EL FORMATO DEL LISTADO"_s);
    EXPECT_EQ(control<QLabel>(*m_forma, u"lblFolio"_s).text(), u"Por Servicios formato Folio"_s);
    EXPECT_EQ(control<QLabel>(*m_forma, u"lblTicket"_s).text(), u"Por Servicios formato Ticket"_s);
}

TEST_F(FrmFechasTest, EachFormatButtonAndItsLabelChooseAndAccept)
{
    const std::pair<QString, bool> casos[] = {
        {u"cmdFolio"_s, false}, {u"lblFolio"_s, false}, {u"cmdTicket"_s, true}, {u"lblTicket"_s, true}};
    for (const auto& [nombre, ticket] : casos) {
        abre(true);
        pulsa(u"Command1"_s);
        pulsa(nombre);
        EXPECT_FALSE(m_forma->isVisible()) << nombre.toStdString();
        EXPECT_EQ(m_contexto.FormatoTicket, ticket) << nombre.toStdString();
        EXPECT_TRUE(m_contexto.FiltroAceptado);
    }
}

TEST_F(FrmFechasTest, AWrongPeriodLeavesTheFormatsInSightWithNoWayBackToTheDates)
{
    abre(true);
    pon(15, 14);
    pulsa(u"Command1"_s);
    pulsa(u"cmdFolio"_s);
    EXPECT_EQ(m_mensajes.dichos.size(), 1);
    EXPECT_TRUE(m_forma->isVisible() && formatosALaVista());
    pulsa(u"Command1"_s);
    EXPECT_EQ(m_mensajes.dichos.size(), 2);
    EXPECT_TRUE(formatosALaVista());
}

TEST_F(FrmFechasTest, WithTheFormatsInSightTheKeyboardDoesNotReachTheDatesBelow)
{
    abre(true);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*m_forma));
    pulsa(u"Command1"_s);
    const QWidget& filtros = control(*m_forma, u"frFiltros"_s);
    for (int pasos = 0; pasos < 40; ++pasos) {
        QTest::keyClick(m_forma->focusWidget(), Qt::Key_Tab);
        ASSERT_FALSE(filtros.isAncestorOf(m_forma->focusWidget())) << m_forma->focusWidget()->objectName().toStdString();
    }
    EXPECT_TRUE(formatosALaVista());
}

TEST_F(FrmFechasTest, WithTheFormatsInSightTheDialogCanBeLeft)
{
    abre(true);
    pulsa(u"Command1"_s);
    pulsa(u"cmd_Salir"_s);
    EXPECT_FALSE(m_forma->isVisible());
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

TEST_F(FrmFechasTest, TheChosenStoreStaysInSightAndCanBeChangedBehindTheFormats)
{
    enServidorCon({u"Sur"_s, u"Norte"_s});
    abre(true);
    pulsa(u"Command1"_s);
    const QWidget& tienda = control(*m_forma, u"lblInfoTienda"_s);
    const QWidget& formatos = control(*m_forma, u"frFormatos"_s);
    const QRect suyo{tienda.mapTo(&*m_forma, QPoint{}), tienda.size()};
    const QRect cubierto{formatos.mapTo(&*m_forma, QPoint{}), formatos.size()};
    EXPECT_TRUE(tienda.isVisible());
    EXPECT_FALSE(suyo.intersects(cubierto));
    EXPECT_TRUE(control(*m_forma, u"PanelTiendas"_s).isEnabled());
}

TEST_F(FrmFechasTest, EnterOnADayOfTheMonthAcceptsTheDialog)
{
    abre();
    auto* const dias = control<Calendario>(*m_forma, u"cld_Hasta"_s).mes().findChild<QWidget*>(u"qt_calendar_calendarview"_s);
    ASSERT_NE(dias, nullptr);
    dias->setFocus();
    QTest::keyClick(dias, Qt::Key_Return);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
    EXPECT_FALSE(m_forma->isVisible());
}

TEST_F(FrmFechasTest, EnterAcceptsTheFirstStageFirst)
{
    abre(true);
    QTest::keyClick(&control<Calendario>(*m_forma, u"cld_Hasta"_s).escrita(), Qt::Key_Return);
    EXPECT_TRUE(formatosALaVista());
    EXPECT_TRUE(m_forma->isVisible());
}

TEST_F(FrmFechasTest, CompletenessIsAskedForWithTheInvoiceModuleAlone)
{
    abre();
    EXPECT_FALSE(control(*m_forma, u"ch_Completo"_s).isVisible());
    m_contexto.ModuloFacturas = true;
    abre();
    auto& completo = control<QCheckBox>(*m_forma, u"ch_Completo"_s);
    EXPECT_TRUE(completo.isVisible());
    EXPECT_EQ(completo.text(), u"Completo"_s);
    QTest::keyClick(&completo, Qt::Key_Space);
    EXPECT_TRUE(m_contexto.CajaCompleta);
    QTest::keyClick(&completo, Qt::Key_Space);
    EXPECT_FALSE(m_contexto.CajaCompleta);
}

TEST_F(FrmFechasTest, StoresAreAskedForOnTheServerAlone)
{
    abre();
    EXPECT_FALSE(control(*m_forma, u"PanelTiendas"_s).isVisible());
    enServidorCon({u"Sur"_s});
    abre();
    EXPECT_TRUE(control(*m_forma, u"PanelTiendas"_s).isVisible());
}

TEST_F(FrmFechasTest, InALowWindowTheCalendarsHaveAHeightOfTheirOwn)
{
    m_contexto.AltoVentana = 11084;
    abre();
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Desde"_s).mes().maximumHeight(), 254); // 3810 twips
    m_contexto.AltoVentana = 11085;
    abre();
    EXPECT_GT(control<Calendario>(*m_forma, u"cld_Desde"_s).mes().maximumHeight(), 10000);
}

TEST_F(FrmFechasTest, AQuickPeriodOnlySetsTheTwoDates)
{
    abre();
    pulsa(u"periodo Mes anterior"_s);
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Desde"_s).fecha(), *Fecha::deCalendario(2024, 2, 1));
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Hasta"_s).fecha(), *Fecha::deCalendario(2024, 2, 29));
    EXPECT_TRUE(m_forma->isVisible());
    EXPECT_EQ(m_contexto.FechaDesde, Fecha{});
}

} // namespace
} // namespace kestrane
