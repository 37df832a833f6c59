#include "dialogs/frm_historico_x_empleados.h"

#include "dialogs/panel_de_prueba.h"

#include <QScrollBar>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmHistoricoXEmpleadosTest : public prueba::FormaConPanelesTest<FrmHistoricoXEmpleados>
{
protected:
    FrmHistoricoXEmpleadosTest()
    {
        empleado(3, u"Luz"_s, u"Gil & Ruiz"_s, u"255"_s);
        empleado(7, u"Sol"_s, u"Paz"_s);
    }
    /// Which of these four stand on the form.
    QStringList aLaVista()
    {
        QStringList lista;
        for (const QString& nombre : {u"fremp"_s, u"frempleados"_s, u"frSeleccion2"_s, u"Command1"_s}) {
            if (seVe(nombre))
                lista += nombre;
        }
        return lista;
    }
    Calendario& hasta() { return control<Calendario>(*m_forma, u"cld_Hasta"_s); }
    qint32 empleadoElegido() { return m_contexto.filtros.empleado; }
};

TEST_F(FrmHistoricoXEmpleadosTest, ItOpensWithTheChoiceOfEmployeesAlone)
{
    m_contexto.FormatoTicket = m_contexto.CajaCompleta = m_contexto.FiltroAceptado = true;
    abre();
    EXPECT_EQ(m_forma->windowTitle(), u"Historico x Empleados"_s);
    EXPECT_EQ(aLaVista(), QStringList{u"fremp"_s});
    EXPECT_TRUE(seVe(u"cmd_Salir"_s));
    EXPECT_EQ(hasta().fecha(), dia(15));
    EXPECT_FALSE(m_contexto.FormatoTicket || m_contexto.CajaCompleta || m_contexto.FiltroAceptado);
}

TEST_F(FrmHistoricoXEmpleadosTest, ItsLoadTakesItsStepsInTheirOrder)
{
    abre();
    EXPECT_EQ(m_aspecto.pasos, (QStringList{u"TraducirForm frmHistoricoXEmpleados"_s, u"AplicarLetra frmHistoricoXEmpleados"_s,
                                            u"PintarForm frmHistoricoXEmpleados"_s, u"DarColorPredefinido1"_s,
                                            u"DarColorPredefinido2"_s, u"DarColorPredefinido3"_s, u"DarColorPredefinido4"_s,
                                            u"EscalarForm frmHistoricoXEmpleados de 15360x11085 a 15360x11085"_s}));
}

TEST_F(FrmHistoricoXEmpleadosTest, AllEmployeesLeadToTheSecondQuestion)
{
    for (const QString& nombre : {u"cmdTodos"_s, u"lblTodos"_s}) {
        m_contexto.filtros.empleado = 3;
        abre();
        pulsa(nombre);
        EXPECT_EQ(empleadoElegido(), -1);
        EXPECT_EQ(rotulo(u"lblEmpbus"_s), u"Todos"_s);
        EXPECT_EQ(aLaVista(), (QStringList{u"fremp"_s, u"frSeleccion2"_s}));
        EXPECT_EQ(control(*m_forma, u"frSeleccion2"_s).geometry(), control(*m_forma, u"fremp"_s).geometry());
    }
}

TEST_F(FrmHistoricoXEmpleadosTest, OneEmployeeIsChosenInAPanelBesideTheQuestion)
{
    for (const QString& nombre : {u"cmdUno"_s, u"lblUno"_s}) {
        abre();
        pulsa(nombre);
        EXPECT_EQ(aLaVista(), (QStringList{u"fremp"_s, u"frempleados"_s}));
        EXPECT_GE(control(*m_forma, u"frempleados"_s).x(), control(*m_forma, u"fremp"_s).geometry().right());
        EXPECT_EQ(textos(u"PanelEmpleados"_s), (QStringList{u"Luz Gil & Ruiz"_s, u"Sol Paz"_s}));
        pulsaFicha(u"PanelEmpleados"_s, 0);
        EXPECT_EQ(empleadoElegido(), 3);
        EXPECT_EQ(rotulo(u"Label3"_s) + rotulo(u"lblEmpbus"_s), u"EMPLEADO SELECCIONADO: Luz Gil & Ruiz"_s);
        EXPECT_TRUE(seVe(u"frSeleccion2"_s));
        EXPECT_FALSE(seVe(u"Command1"_s));
    }
}

TEST_F(FrmHistoricoXEmpleadosTest, TotalsOrDetailIsTheLastQuestionBeforeTheButtonToAccept)
{
    const std::pair<QString, bool> casos[] = {
        {u"cmdDeta"_s, false}, {u"cmdDetal1"_s, false}, {u"cmdTotal"_s, true}, {u"cmdTotal1"_s, true}};
    for (const auto& [nombre, totalizado] : casos) {
        m_contexto.filtros.totalizado = !totalizado;
        abre();
        pulsa(u"cmdTodos"_s);
        pulsa(nombre);
        EXPECT_EQ(m_contexto.filtros.totalizado, totalizado) << nombre.toStdString();
        EXPECT_EQ(aLaVista(), (QStringList{u"fremp"_s, u"Command1"_s})) << nombre.toStdString();
        EXPECT_TRUE(seVe(u"cmd_Salir"_s));
        pulsa(u"Command1"_s);
        EXPECT_FALSE(m_forma->isVisible());
        EXPECT_TRUE(m_contexto.FiltroAceptado);
        EXPECT_EQ(m_contexto.FechaDesde, dia(15));
    }
}

TEST_F(FrmHistoricoXEmpleadosTest, TheWayBackFromThePanelMeansAllAndLeavesTheName)
{
    abre();
    pulsa(u"cmdUno"_s);
    pulsaFicha(u"PanelEmpleados"_s, 1);
    pulsa(u"Command7"_s);
    EXPECT_EQ(empleadoElegido(), -1);
    EXPECT_EQ(rotulo(u"lblEmpbus"_s), u"Sol Paz"_s);
    EXPECT_EQ(aLaVista(), (QStringList{u"fremp"_s, u"frSeleccion2"_s}));
}

TEST_F(FrmHistoricoXEmpleadosTest, BehindTheLastQuestionAnotherEmployeeMayStillBeChosen)
{
    abre();
    pulsa(u"cmdTodos"_s);
    pulsa(u"cmdDeta"_s);
    pulsa(u"cmdUno"_s);
    pulsaFicha(u"PanelEmpleados"_s, 1);
    EXPECT_EQ(empleadoElegido(), 7);
    EXPECT_TRUE(seVe(u"frSeleccion2"_s) && seVe(u"Command1"_s));
}

TEST_F(FrmHistoricoXEmpleadosTest, AWrongPeriodIsToldAndTheDialogStays)
{
    abre();
    hasta().pon(dia(14));
    pulsa(u"cmdTodos"_s);
    pulsa(u"cmdDeta"_s);
    pulsa(u"Command1"_s);
    EXPECT_TRUE(m_forma->isVisible());
    EXPECT_EQ(m_mensajes.dichos, QStringList{u"Listados: La fecha hasta seleccionada es anterior a la fecha desde."_s});
    EXPECT_EQ(m_contexto.FechaDesde, Fecha{});
}

TEST_F(FrmHistoricoXEmpleadosTest, EnterAcceptsNothingBeforeThereIsAButtonForIt)
{
    abre();
    tecla(Qt::Key_Return);
    EXPECT_TRUE(m_forma->isVisible());
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

TEST_F(FrmHistoricoXEmpleadosTest, TheKeyboardGoesWhereTheNextAnswerIs)
{
    abre();
    control(*m_forma, u"cmdUno"_s).setFocus();
    tecla(Qt::Key_Space);
    EXPECT_EQ(m_forma->focusWidget(), panel(u"PanelEmpleados"_s).fichas()[0]);
    tecla(Qt::Key_Return);
    EXPECT_EQ(empleadoElegido(), 3);
    EXPECT_EQ(m_forma->focusWidget(), &control(*m_forma, u"cmdDeta"_s));
    EXPECT_FALSE(control(*m_forma, u"cmdUno"_s).isEnabled()); // covered
    tecla(Qt::Key_Space);
    EXPECT_TRUE(control(*m_forma, u"cmdUno"_s).isEnabled());
    EXPECT_EQ(m_forma->focusWidget(), &control(*m_forma, u"Command1"_s));
    tecla(Qt::Key_Return);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmHistoricoXEmpleadosTest, EmployeesHaveColoursWhereTheShopUsesThem)
{
    abre();
    const QColor deTodas = panel(u"PanelEmpleados"_s).fichas()[0]->color();
    EXPECT_EQ(panel(u"PanelEmpleados"_s).fichas()[1]->color(), deTodas);
    m_contexto.UtilizaColoresEmpleados = true;
    abre();
    EXPECT_EQ(panel(u"PanelEmpleados"_s).fichas()[0]->color(), QColor(255, 0, 0));
    EXPECT_EQ(panel(u"PanelEmpleados"_s).fichas()[1]->color(), QColor(1, 0, 0));
}

TEST_F(FrmHistoricoXEmpleadosTest, AnEmptyPanelHasTheWayBackAlone)
{
    m_tienda.ejecuta(u"delete from empleados"_s);
    abre();
    pulsa(u"cmdUno"_s);
    EXPECT_TRUE(textos(u"PanelEmpleados"_s).isEmpty());
    pulsa(u"Command7"_s);
    EXPECT_EQ(aLaVista(), QStringList{u"fremp"_s});
}

TEST_F(FrmHistoricoXEmpleadosTest, TwoHundredEmployeesWithLongNamesAreScrolledAndNothingOfThemIsCut)
{
    for (int codigo = 10; codigo < 208; ++codigo)
        empleado(codigo, u"María de los Ángeles"_s, u"Fernández de Córdoba y Álvarez de Toledo"_s); // 60 and a blank
    abre();
    pulsa(u"cmdUno"_s);
    QCoreApplication::processEvents();
    const QList<Ficha*>& fichas = panel(u"PanelEmpleados"_s).fichas();
    ASSERT_EQ(fichas.size(), 200);
    EXPECT_GT(panel(u"PanelEmpleados"_s).verticalScrollBar()->maximum(), 0);
    EXPECT_GE(fichas[199]->height(), fichas[199]->heightForWidth(fichas[199]->width()));
    pulsaFicha(u"PanelEmpleados"_s, 199);
    EXPECT_EQ(empleadoElegido(), 207);
}

TEST_F(FrmHistoricoXEmpleadosTest, LeavingHalfWayAcceptsNothing)
{
    abre();
    pulsa(u"cmdTodos"_s);
    pulsa(u"cmdTotal"_s);
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(m_forma->isVisible() || m_contexto.FiltroAceptado);
    abre();
    EXPECT_EQ(aLaVista(), QStringList{u"fremp"_s});
    EXPECT_EQ(rotulo(u"lblEmpbus"_s), QString{});
}

} // namespace
} // namespace kestrane
