#include "platform/suite/windows/escala_control.h"

#include <gtest/gtest.h>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kestrane {
namespace {

constexpr CambioEscala Doble{{1, 1}, {2, 3}};
constexpr CambioEscala DeVuelta{{2, 3}, {1, 1}};

TEST(EscalaControlTest, LeastSizesGoByTheirDirection)
{
    QLabel control;
    control.setMinimumSize(50, 20);
    escalaControl(control, Doble);
    EXPECT_EQ(control.minimumSize(), QSize(100, 60));
    escalaControl(control, DeVuelta);
    EXPECT_EQ(control.minimumSize(), QSize(50, 20));
}

TEST(EscalaControlTest, AFixedHeightStaysFixed)
{
    QLabel control;
    control.setFixedHeight(20);
    escalaControl(control, Doble);
    EXPECT_EQ(control.minimumHeight(), 60);
    EXPECT_EQ(control.maximumHeight(), 60);
    escalaControl(control, DeVuelta);
    EXPECT_EQ(control.minimumHeight(), 20);
    EXPECT_EQ(control.maximumHeight(), 20);
}

TEST(EscalaControlTest, WithoutBoundsThereAreNone)
{
    QLabel control;
    escalaControl(control, Doble);
    EXPECT_EQ(control.minimumSize(), QSize(0, 0));
    EXPECT_EQ(control.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

TEST(EscalaControlTest, IconsGrowByTheLesserFactor)
{
    QPushButton boton;
    boton.setIconSize({16, 24});
    escalaControl(boton, Doble);
    EXPECT_EQ(boton.iconSize(), QSize(32, 48));
}

TEST(EscalaControlTest, MarginsAndSpacingsOfLayoutsInsideLayoutsToo)
{
    QWidget control;
    auto* columna = new QVBoxLayout{&control};
    columna->setContentsMargins(1, 2, 3, 4);
    columna->setSpacing(5);
    auto* rejilla = new QGridLayout;
    columna->addLayout(rejilla);
    rejilla->setHorizontalSpacing(6);
    rejilla->setVerticalSpacing(7);
    escalaControl(control, Doble);
    EXPECT_EQ(columna->contentsMargins(), QMargins(2, 6, 6, 12));
    EXPECT_EQ(columna->spacing(), 10);
    EXPECT_EQ(rejilla->horizontalSpacing(), 12);
    EXPECT_EQ(rejilla->verticalSpacing(), 21);
}

TEST(EscalaControlTest, AWindowKeepsTheLeastSizeThatItsLayoutMakes)
{
    QWidget ventana;
    auto* columna = new QVBoxLayout{&ventana};
    auto* control = new QLabel;
    control->setMinimumSize(300, 100);
    columna->addWidget(control);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->activate();
    ASSERT_EQ(ventana.minimumSize(), QSize(300, 100));
    escalaControl(ventana, Doble); // its own turn; the label has had none
    columna->activate();
    EXPECT_EQ(ventana.minimumSize(), QSize(300, 100));
}

TEST(EscalaControlTest, TheLeastSizeThatAWindowWasGivenIsScaled)
{
    QWidget ventana;
    auto* columna = new QVBoxLayout{&ventana};
    columna->addWidget(new QLabel);
    ventana.setMinimumSize(380, 110);
    escalaControl(ventana, Doble);
    EXPECT_EQ(ventana.minimumSize(), QSize(760, 330));
}

TEST(EscalaControlTest, AWindowWithoutASizeOfItsOwnGetsNone)
{
    QWidget ventana;
    const QSize antes = ventana.size();
    escalaTamano(ventana, antes, Doble);
    EXPECT_EQ(ventana.size(), antes);
    ventana.resize(100, 50);
    escalaTamano(ventana, {100, 50}, Doble);
    EXPECT_EQ(ventana.size(), QSize(200, 150));
}

TEST(EscalaControlTest, AWindowThatFillsTheScreenKeepsFillingIt)
{
    QWidget ventana;
    ventana.showMaximized();
    const QSize antes = ventana.size();
    escalaTamano(ventana, antes, Doble);
    EXPECT_EQ(ventana.size(), antes);
}

} // namespace
} // namespace kestrane
