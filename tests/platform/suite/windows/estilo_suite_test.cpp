#include "platform/suite/windows/estilo_suite.h"

#include "platform/suite/windows/paleta_colores.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QStyleOption>
#include <QVBoxLayout>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class EstiloSuiteTest : public testing::Test
{
protected:
    EstiloSuiteTest() { ponEstiloSuite(); }

    /// The control, 200 by 60, in the first theme.
    static QImage pintado(QWidget& control)
    {
        control.setPalette(coloresDe(1));
        control.resize(200, 60);
        return control.grab().toImage();
    }
};

TEST_F(EstiloSuiteTest, TheProgramGetsItOnce)
{
    QStyle* puesto = QApplication::style();
    ASSERT_NE(qobject_cast<EstiloSuite*>(puesto), nullptr);
    ponEstiloSuite();
    EXPECT_EQ(QApplication::style(), puesto);
}

TEST_F(EstiloSuiteTest, AButtonIsFlatWithRoundCorners)
{
    QPushButton boton;
    const QImage imagen = pintado(boton);
    EXPECT_EQ(imagen.pixelColor(100, 30), boton.palette().color(QPalette::Button));
    EXPECT_EQ(imagen.pixelColor(100, 5), boton.palette().color(QPalette::Button));
    EXPECT_EQ(imagen.pixelColor(0, 0), boton.palette().color(QPalette::Window));
}

TEST_F(EstiloSuiteTest, AFlatButtonShowsNoGroundAtRest)
{
    QPushButton boton;
    boton.setFlat(true);
    const QPalette colores = coloresDe(1);
    EXPECT_EQ(pintado(boton).pixelColor(100, 30), colores.color(QPalette::Window));
    boton.setCheckable(true);
    boton.setChecked(true);
    EXPECT_EQ(pintado(boton).pixelColor(100, 30), colores.color(QPalette::Highlight));
}

TEST_F(EstiloSuiteTest, AnOptionsBoxGrowsWithItsLetters)
{
    QCheckBox casilla;
    const int antes = casilla.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &casilla);
    QFont letra = casilla.font();
    letra.setPointSizeF(letra.pointSizeF() * 2);
    casilla.setFont(letra);
    EXPECT_GT(casilla.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &casilla), antes);
}

TEST_F(EstiloSuiteTest, AProgressBarIsFilledAsFarAsItIsDone)
{
    QProgressBar barra;
    barra.setTextVisible(false);
    barra.setValue(50);
    const QImage imagen = pintado(barra);
    EXPECT_EQ(imagen.pixelColor(50, 30), barra.palette().color(QPalette::LinkVisited));
    EXPECT_EQ(imagen.pixelColor(150, 30), barra.palette().color(QPalette::Button));
    barra.setValue(0);
    EXPECT_EQ(pintado(barra).pixelColor(10, 30), coloresDe(1).color(QPalette::Button));
    barra.setValue(100);
    EXPECT_EQ(pintado(barra).pixelColor(190, 30), coloresDe(1).color(QPalette::LinkVisited));
}

TEST_F(EstiloSuiteTest, AFrameIsACardWhereItSaysSo)
{
    QFrame marco;
    marco.setFrameShape(QFrame::StyledPanel);
    marco.setProperty(propiedades::Tarjeta, true);
    QPalette colores = coloresDe(1);
    colores.setColor(QPalette::Window, Qt::red);
    marco.setPalette(colores);
    marco.resize(200, 60);
    QImage imagen{marco.size(), QImage::Format_ARGB32_Premultiplied};
    imagen.fill(Qt::transparent);
    marco.render(&imagen, {}, {}, QWidget::DrawChildren);
    EXPECT_EQ(imagen.pixelColor(100, 30), QColor{Qt::red});
    EXPECT_EQ(imagen.pixelColor(0, 0).alpha(), 0);
}

TEST_F(EstiloSuiteTest, MenusAndPagesOfTabsHaveABorderAroundAPlainGround)
{
    QMenu menu;
    menu.addAction(u"Copiar"_s);
    const QImage deMenu = pintado(menu);
    EXPECT_EQ(deMenu.pixelColor(100, 0), coloresDe(1).color(QPalette::Mid));
    EXPECT_EQ(deMenu.pixelColor(100, 58), coloresDe(1).color(QPalette::Base));

    QStyleOptionTabWidgetFrame pagina;
    pagina.rect = {0, 0, 200, 60};
    pagina.palette = coloresDe(1);
    QImage imagen{pagina.rect.size(), QImage::Format_ARGB32_Premultiplied};
    imagen.fill(Qt::transparent);
    QPainter pintor{&imagen};
    QApplication::style()->drawPrimitive(QStyle::PE_FrameTabWidget, &pagina, &pintor);
    EXPECT_EQ(imagen.pixelColor(100, 0), coloresDe(1).color(QPalette::Mid));
    EXPECT_EQ(imagen.pixelColor(100, 30).alpha(), 0);
}

TEST_F(EstiloSuiteTest, TheTitleOfAGroupHasRoomAboveItsContents)
{
    QGroupBox grupo{u"Listados Generales"_s};
    auto* columna = new QVBoxLayout{&grupo};
    auto* boton = new QPushButton{u"Empleados"_s};
    columna->addWidget(boton);
    grupo.resize(grupo.sizeHint());
    columna->activate();
    EXPECT_GE(boton->y(), grupo.fontMetrics().height() + 10);
    QFont negrita = grupo.font();
    negrita.setBold(true);
    EXPECT_GE(grupo.minimumSizeHint().width(), QFontMetrics{negrita}.horizontalAdvance(grupo.title()) + 24);
}

TEST_F(EstiloSuiteTest, TextDoesNotTouchTheBorderOfItsField)
{
    QLineEdit campo;
    QStyleOptionFrame opcion;
    opcion.initFrom(&campo);
    opcion.rect = {0, 0, 200, 40};
    opcion.lineWidth = 1;
    EXPECT_GE(campo.style()->subElementRect(QStyle::SE_LineEditContents, &opcion, &campo).left(), 6);
}

} // namespace
} // namespace kestrane
