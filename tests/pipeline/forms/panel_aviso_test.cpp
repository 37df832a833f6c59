#include "pipeline/forms/panel_aviso.h"

#include "pipeline/forms/menu_de_prueba.h"

#include <QTest>

/// The choice of clients for labels.
namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::MenuTest;

class PanelAvisoTest : public MenuTest
{
protected:
    PanelAvisoTest()
    {
        abre();
        m_menu->Haz(AccionMenu::EtiquetasDeClientes);
        asienta();
    }
    void pulsa(const QString& nombre) { QTest::keyClick(&control(nombre), Qt::Key_Space); }
    EtiquetasClientes toma()
    {
        m_menu->tomaEtiquetas();
        return m_contexto.filtros.etiquetas;
    }
};

TEST_F(PanelAvisoTest, ItsTextsAreTheirOwn)
{
    const std::pair<QString, QString> leyendas[] = {
        {u"optTodos"_s, u"Todos los clientes"_s}, {u"OptCPostal"_s, u"Codigo Postal"_s},  {u"optConsumo"_s, u"Consumo"_s},
        {u"OptMayorConsumo"_s, u"Mayor que"_s},   {u"OptMenoConsumo"_s, u"Menor que"_s},  {u"optCumple"_s, u"Cumpleaños"_s},
        {u"optVisitas"_s, u"Numero visita"_s},    {u"OptMayorVisitas"_s, u"Mayor que"_s}, {u"optMenoVisitas"_s, u"Menor que"_s},
        {u"OptGeneral"_s, u"General"_s},
    };
    for (const auto& [nombre, leyenda] : leyendas)
        EXPECT_EQ(control<QRadioButton>(nombre).text(), leyenda) << nombre.toStdString();
    EXPECT_EQ(control<QLabel>(u"lblAviso"_s).text(), u"El formato de etiquetas que utiliza el programa es de 70 X 35 mm."_s);
    QStringList rotulos;
    for (const QLabel* const rotulo : control(u"Frame15"_s).findChildren<QLabel*>())
        rotulos += rotulo->text();
    EXPECT_EQ(rotulos, (QStringList{u"Desde"_s, u"Hasta"_s}));
}

TEST_F(PanelAvisoTest, ItOpensOnTheHiddenGeneralChoiceWithBirthdaysOfToday)
{
    EXPECT_FALSE(control(u"OptGeneral"_s).isVisible());
    const EtiquetasClientes elegidas = toma();
    EXPECT_TRUE(elegidas.OptGeneral);
    EXPECT_FALSE(elegidas.optTodos || elegidas.OptCPostal || elegidas.optConsumo || elegidas.optCumple || elegidas.optVisitas);
    EXPECT_EQ(elegidas.desdeCumple, *Fecha::deCalendario(2024, 3, 15));
    EXPECT_EQ(elegidas.HastaCumple, *Fecha::deCalendario(2024, 3, 15));
}

TEST_F(PanelAvisoTest, OpeningItAgainGoesBackToTheGeneralChoiceAndToToday)
{
    pulsa(u"optCumple"_s);
    control<QDateEdit>(u"desdeCumple"_s).setDate({2024, 1, 1});
    control<QLineEdit>(u"txtConsumo"_s).setText(u"50"_s);
    m_menu->Haz(AccionMenu::EtiquetasDeClientes);
    const EtiquetasClientes elegidas = toma();
    EXPECT_TRUE(elegidas.OptGeneral);
    EXPECT_FALSE(elegidas.optCumple);
    EXPECT_EQ(elegidas.desdeCumple, *Fecha::deCalendario(2024, 3, 15));
    EXPECT_EQ(elegidas.txtConsumo, u"50"_s);
}

TEST_F(PanelAvisoTest, EachOfThreeChoicesEnablesItsOwnFrameAlone)
{
    const auto activos = [this] {
        QStringList nombres;
        for (const QString& nombre : {u"Frame14"_s, u"Frame15"_s, u"Frame16"_s}) {
            if (control(nombre).isEnabled())
                nombres += nombre;
        }
        return nombres;
    };
    EXPECT_TRUE(activos().isEmpty());
    pulsa(u"optConsumo"_s);
    EXPECT_EQ(activos(), QStringList{u"Frame16"_s});
    pulsa(u"optCumple"_s);
    EXPECT_EQ(activos(), QStringList{u"Frame15"_s});
    pulsa(u"optVisitas"_s);
    EXPECT_EQ(activos(), QStringList{u"Frame14"_s});
    pulsa(u"optTodos"_s);
    EXPECT_TRUE(activos().isEmpty());
}

TEST_F(PanelAvisoTest, WhatIsTypedAndChosenIsWhatTheReportIsGiven)
{
    pulsa(u"optConsumo"_s);
    pulsa(u"OptMenoConsumo"_s);
    QTest::keyClicks(&control(u"txtConsumo"_s), u"12,50"_s);
    const EtiquetasClientes consumo = toma();
    EXPECT_TRUE(consumo.optConsumo);
    EXPECT_FALSE(consumo.OptMayorConsumo);
    EXPECT_EQ(consumo.txtConsumo, u"12,50"_s);

    pulsa(u"optVisitas"_s);
    pulsa(u"OptMayorVisitas"_s);
    QTest::keyClicks(&control(u"txtValVisitas"_s), u"7"_s);
    const EtiquetasClientes visitas = toma();
    EXPECT_TRUE(visitas.optVisitas && visitas.OptMayorVisitas);
    EXPECT_FALSE(visitas.optConsumo);
    EXPECT_EQ(visitas.txtValVisitas, u"7"_s);

    pulsa(u"OptCPostal"_s);
    QTest::keyClicks(&control(u"txtCPostal"_s), u"28013"_s);
    EXPECT_EQ(toma().txtCPostal, u"28013"_s);
}

TEST_F(PanelAvisoTest, BirthdaysAreTakenAsTheyStand)
{
    pulsa(u"optCumple"_s);
    control<QDateEdit>(u"desdeCumple"_s).setDate({2024, 3, 1});
    control<QDateEdit>(u"HastaCumple"_s).setDate({2024, 3, 31});
    const EtiquetasClientes elegidas = toma();
    EXPECT_TRUE(elegidas.optCumple);
    EXPECT_EQ(elegidas.desdeCumple, *Fecha::deCalendario(2024, 3, 1));
    EXPECT_EQ(elegidas.HastaCumple, *Fecha::deCalendario(2024, 3, 31));
}

TEST_F(PanelAvisoTest, ContinuingIsAButtonOfTheCatalogueAndReadingClosesThePanel)
{
    QTest::mouseClick(&control(u"Command10"_s), Qt::LeftButton);
    EXPECT_EQ(m_pulsados, QStringList{u"Command10"_s});
    toma();
    EXPECT_FALSE(control(u"frAviso"_s).isVisible());
}

TEST_F(PanelAvisoTest, EscapeAndItsCloseButtonLeaveItWithoutAReport)
{
    QTest::keyClick(&control(u"optTodos"_s), Qt::Key_Escape);
    EXPECT_FALSE(control(u"frAviso"_s).isVisible());
    m_menu->Haz(AccionMenu::EtiquetasDeClientes);
    QTest::mouseClick(&control(u"cierraAviso"_s), Qt::LeftButton);
    EXPECT_FALSE(control(u"frAviso"_s).isVisible());
    EXPECT_TRUE(m_pulsados.isEmpty());
}

TEST_F(PanelAvisoTest, TheFocusGoesBackToTheButtonThatOpensThePanel)
{
    QTest::keyClick(&control(u"optTodos"_s), Qt::Key_Escape);
    EXPECT_EQ(m_menu->focusWidget(), &control(u"cmd_Generales12"_s));
}

TEST_F(PanelAvisoTest, TheKeyboardGoesFromTheFirstChoiceToTheWayOutAndPassesOverWhatIsCovered)
{
    control(u"optTodos"_s).setFocus();
    QStringList camino;
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(m_menu->focusWidget(), Qt::Key_Tab);
        camino += m_menu->focusWidget()->objectName();
        EXPECT_FALSE(estaTapado(*m_menu->focusWidget())) << camino.constLast().toStdString();
    }
    EXPECT_EQ(camino.first(3), (QStringList{u"txtCPostal"_s, u"Command10"_s, u"cierraAviso"_s}));
}

} // namespace
} // namespace kestrane
