#include "platform/report/preview/ventana_de_prueba.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class VentanaVistaMontaje : public prueba::VentanaDePrueba
{
};

TEST_F(VentanaVistaMontaje, KeysGoThroughThePagesFromEveryControl)
{
    abre(5, 5);
    control<QToolButton>(u"buscar")->setFocus();
    tecla(Qt::Key_End);
    EXPECT_EQ(lienzo().paginaActual(), 4);
    tecla(Qt::Key_Home);
    EXPECT_EQ(lienzo().paginaActual(), 0);
    control<QToolButton>(u"paginaEntera")->click();
    tecla(Qt::Key_PageDown);
    EXPECT_EQ(lienzo().paginaActual(), 1);
    tecla(Qt::Key_PageUp);
    EXPECT_EQ(lienzo().paginaActual(), 0);
}

TEST_F(VentanaVistaMontaje, ControlPlusAndMinusEnlargeAndReduce)
{
    abre(1, 1);
    tecla(Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(lienzo().porcentaje(), 100);
    tecla(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(lienzo().porcentaje(), 110);
    tecla(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(lienzo().porcentaje(), 100);
    EXPECT_EQ(control<QToolButton>(u"zoom")->text(), u"100 %"_s);
}

TEST_F(VentanaVistaMontaje, ControlFSearchesAndF3GoesOn)
{
    abre({{u"Corte"_s}, {u"nada"_s}, {u"CÓRTE"_s}});
    tecla(Qt::Key_F, Qt::ControlModifier);
    auto* campo = control<QLineEdit>(u"textoBuscado");
    EXPECT_TRUE(campo->hasFocus());
    QTest::keyClicks(campo, u"corte"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return texto(u"cuentaAciertos") == u"1 de 2"_s; }));
    tecla(Qt::Key_F3);
    EXPECT_EQ(texto(u"cuentaAciertos"), u"2 de 2"_s);
    EXPECT_EQ(lienzo().paginaActual(), 2);
    tecla(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(lienzo().paginaActual(), 0);
}

TEST_F(VentanaVistaMontaje, EscapeClosesSearchThenSelectionThenTheWindow)
{
    abre(2, 2);
    tecla(Qt::Key_F, Qt::ControlModifier);
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(control<QWidget>(u"barraBusqueda")->isVisible());
    EXPECT_TRUE(lienzo().hasFocus());
    tecla(Qt::Key_A, Qt::ControlModifier);
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(lienzo().haySeleccion());
    EXPECT_TRUE(ventana->isVisible());
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
}

TEST_F(VentanaVistaMontaje, ControlACopiesThePage)
{
    abre({{u"Corte|8,00"_s}});
    tecla(Qt::Key_A, Qt::ControlModifier);
    tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Corte\t8,00\nPágina 1 de 1"_s);
}

TEST_F(VentanaVistaMontaje, ControlCInTheSearchFieldCopiesTheField)
{
    abre({{u"Corte"_s}});
    tecla(Qt::Key_A, Qt::ControlModifier);
    tecla(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(control<QLineEdit>(u"textoBuscado"), u"tinte"_s);
    tecla(Qt::Key_A, Qt::ControlModifier);
    tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"tinte"_s);
}

TEST_F(VentanaVistaMontaje, TheKeyboardBeginsOnThePages)
{
    abre(1, 1);
    EXPECT_TRUE(lienzo().hasFocus());
}

TEST_F(VentanaVistaMontaje, OnASmallScreenMostOfTheWindowIsForThePages)
{
    recuerdo.tamano = {640, 480};
    abre(2, 2);
    EXPECT_GE(lienzo().width(), 400);
}

TEST_F(VentanaVistaMontaje, WithoutGroupsThereIsNoTree)
{
    abre(2, 2);
    EXPECT_FALSE(control<QTabWidget>(u"panel")->isTabVisible(1));
}

TEST_F(VentanaVistaMontaje, ItsButtonsGoThroughThePages)
{
    abre(5, 5);
    pulsa(u"siguiente");
    pulsa(u"siguiente");
    EXPECT_EQ(lienzo().paginaActual(), 2);
    pulsa(u"anterior");
    EXPECT_EQ(lienzo().paginaActual(), 1);
    pulsa(u"ultima");
    EXPECT_EQ(lienzo().paginaActual(), 4);
    pulsa(u"primera");
    EXPECT_EQ(lienzo().paginaActual(), 0);
}

TEST_F(VentanaVistaMontaje, ThePanelIsPutAwayAndBack)
{
    abre(2, 2);
    pulsa(u"panelLateral");
    EXPECT_FALSE(control<QTabWidget>(u"panel")->isVisible());
    EXPECT_FALSE(recuerdo.panel);
    pulsa(u"panelLateral");
    EXPECT_TRUE(control<QTabWidget>(u"panel")->isVisible());
}

} // namespace
} // namespace kestrane::report
