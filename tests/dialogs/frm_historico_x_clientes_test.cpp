#include "dialogs/frm_historico_x_clientes.h"

#include "dialogs/panel_de_prueba.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmHistoricoXClientesTest : public prueba::FormaConPanelesTest<FrmHistoricoXClientes>
{
protected:
    FrmHistoricoXClientesTest() { m_contexto.TipoPrograma = u"PELUQUERIA"_s; }
    void dosSecciones()
    {
        seccion(4, u"Champús"_s);
        seccion(9, u"Corte & Color"_s, u"255"_s);
    }
    void acepta() { pulsa(u"Command1"_s); }
};

TEST_F(FrmHistoricoXClientesTest, ItOpensOnTodayWithoutSectionFormatOrAcceptance)
{
    m_contexto.FormatoTicket = m_contexto.FiltroAceptado = true;
    m_contexto.filtros.seccion = 4;
    dosSecciones();
    abre();
    EXPECT_EQ(m_forma->windowTitle(), u"Historico x Clientes"_s);
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Desde"_s).fecha(), dia(15));
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Hasta"_s).fecha(), dia(15));
    EXPECT_EQ(m_contexto.filtros.seccion, -1);
    EXPECT_FALSE(m_contexto.FormatoTicket || m_contexto.FiltroAceptado);
    EXPECT_EQ(control<QCheckBox>(*m_forma, u"Check1"_s).text(), u"Todas las Secciones"_s);
    EXPECT_EQ(control<QCheckBox>(*m_forma, u"chFTicket"_s).text(), u"Formato Ticket"_s);
}

TEST_F(FrmHistoricoXClientesTest, ItsLoadTakesItsStepsInTheirOrder)
{
    abre();
    EXPECT_EQ(
        m_aspecto.pasos,
        (QStringList{u"TraducirForm frmHistoricoXClientes"_s, u"AplicarLetra frmHistoricoXClientes"_s,
                     u"PintarForm frmHistoricoXClientes"_s, u"EscalarForm frmHistoricoXClientes de 15360x11085 a 15360x11085"_s,
                     u"DarColorPredefinido1"_s, u"DarColorPredefinido2"_s, u"DarColorPredefinido3"_s, u"DarColorPredefinido4"_s}));
}

TEST_F(FrmHistoricoXClientesTest, SectionsHaveTheirColoursOrOneOfTheFour)
{
    dosSecciones();
    abre();
    EXPECT_EQ(textos(u"PanelSecciones"_s), (QStringList{u"Champús"_s, u"Corte & Color"_s}));
    EXPECT_EQ(panel(u"PanelSecciones"_s).fichas()[0]->color(), QColor(1, 0, 0));
    EXPECT_EQ(panel(u"PanelSecciones"_s).fichas()[1]->color(), QColor(255, 0, 0));
}

TEST_F(FrmHistoricoXClientesTest, WithoutSectionsThePanelIsEmpty)
{
    abre();
    EXPECT_TRUE(seVe(u"PanelSecciones"_s));
    EXPECT_TRUE(textos(u"PanelSecciones"_s).isEmpty());
}

TEST_F(FrmHistoricoXClientesTest, AcceptedWithoutASectionAllAreMeantThoughTheBoxWasNotTicked)
{
    dosSecciones();
    abre();
    acepta();
    EXPECT_FALSE(m_forma->isVisible());
    EXPECT_TRUE(m_contexto.FiltroAceptado && m_contexto.filtros.todasLasSecciones);
    EXPECT_EQ(m_contexto.filtros.seccion, -1);
    EXPECT_EQ(m_contexto.FechaDesde, dia(15));
}

TEST_F(FrmHistoricoXClientesTest, APressedSectionUnticksTheBox)
{
    dosSecciones();
    abre();
    pulsa(u"Check1"_s);
    EXPECT_TRUE(m_contexto.filtros.todasLasSecciones);
    pulsaFicha(u"PanelSecciones"_s, 1);
    EXPECT_FALSE(control<QCheckBox>(*m_forma, u"Check1"_s).isChecked());
    acepta();
    EXPECT_FALSE(m_contexto.filtros.todasLasSecciones);
    EXPECT_EQ(m_contexto.filtros.seccion, 9);
}

TEST_F(FrmHistoricoXClientesTest, TheBoxTickedBehindASectionKeepsItsCode)
{
    dosSecciones();
    abre();
    pulsaFicha(u"PanelSecciones"_s, 0);
    pulsa(u"Check1"_s);
    acepta();
    EXPECT_TRUE(m_contexto.filtros.todasLasSecciones);
    EXPECT_EQ(m_contexto.filtros.seccion, 4);
}

TEST_F(FrmHistoricoXClientesTest, ProductsServicesOrBoth)
{
    const std::tuple<QString, bool, bool> casos[] = {
        {u"optprod"_s, true, false}, {u"optServ"_s, false, true}, {u"optAmbos"_s, false, false}};
    for (const auto& [opcion, productos, servicios] : casos) {
        abre();
        pulsa(opcion);
        acepta();
        EXPECT_EQ(m_contexto.filtros.soloProductos, productos) << opcion.toStdString();
        EXPECT_EQ(m_contexto.filtros.soloServicios, servicios) << opcion.toStdString();
    }
}

TEST_F(FrmHistoricoXClientesTest, WhereOnlyProductsAreSoldTheOptionsAreHidden)
{
    abre();
    EXPECT_TRUE(seVe(u"Frame3"_s));
    m_contexto.TipoPrograma = u"PERFUMERIA"_s;
    abre();
    EXPECT_FALSE(seVe(u"Frame3"_s));
    EXPECT_TRUE(control<QRadioButton>(*m_forma, u"optprod"_s).isChecked());
    acepta();
    EXPECT_TRUE(m_contexto.filtros.soloProductos);
}

TEST_F(FrmHistoricoXClientesTest, AWrongPeriodIsToldAndTheDialogStays)
{
    abre();
    control<Calendario>(*m_forma, u"cld_Hasta"_s).pon(dia(14));
    acepta();
    EXPECT_TRUE(m_forma->isVisible());
    EXPECT_EQ(m_mensajes.dichos, QStringList{u"Listados: La fecha hasta seleccionada es anterior a la fecha desde."_s});
    EXPECT_EQ(m_contexto.FechaDesde, Fecha{});
}

TEST_F(FrmHistoricoXClientesTest, TheFormatIsTheTicketsWhileItsBoxIsTicked)
{
    abre();
    pulsa(u"chFTicket"_s);
    EXPECT_TRUE(m_contexto.FormatoTicket);
    pulsa(u"chFTicket"_s);
    EXPECT_FALSE(m_contexto.FormatoTicket);
}

TEST_F(FrmHistoricoXClientesTest, CompletenessIsAskedForWithTheInvoiceModuleAloneAndStaysFromOneUseToTheNext)
{
    abre();
    EXPECT_FALSE(seVe(u"ch_Completo"_s));
    m_contexto.ModuloFacturas = true;
    abre();
    pulsa(u"ch_Completo"_s);
    EXPECT_TRUE(m_contexto.CajaCompleta);
    abre();
    EXPECT_FALSE(control<QCheckBox>(*m_forma, u"ch_Completo"_s).isChecked());
    EXPECT_TRUE(m_contexto.CajaCompleta);
}

TEST_F(FrmHistoricoXClientesTest, WithTheKeyboardAloneItIsAcceptedOrLeft)
{
    abre();
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(m_forma->isVisible() || m_contexto.FiltroAceptado);
    abre();
    tecla(Qt::Key_Return);
    EXPECT_FALSE(m_forma->isVisible());
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmHistoricoXClientesTest, OnTheServerAStoreIsChosen)
{
    enServidorCon({u"Sur"_s});
    abre();
    pulsaFicha(u"PanelTiendas"_s, 1);
    EXPECT_EQ(rotulo(u"lblInfoTienda"_s), u"Sur"_s);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Sur"_s);
}

} // namespace
} // namespace kestrane
