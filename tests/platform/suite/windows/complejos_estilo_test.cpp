#include "platform/suite/windows/complejos_estilo.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

QStyleOptionSlider barra(int posicion)
{
    QStyleOptionSlider nueva;
    nueva.rect = {0, 0, 14, 200};
    nueva.orientation = Qt::Vertical;
    nueva.minimum = 0;
    nueva.maximum = 300;
    nueva.pageStep = 100;
    nueva.sliderPosition = posicion;
    return nueva;
}

QRect parteDe(const QStyleOptionSlider& barra, QStyle::SubControl parte)
{
    return complejos::sitio(QStyle::CC_ScrollBar, barra, parte).value_or(QRect{-1, -1, 0, 0});
}

TEST(ComplejosEstiloTest, TheHandleOfAScrollBarIsAsLongAsWhatIsSeenAndReachesBothEnds)
{
    // A quarter of the 400 is seen: a quarter of the 200 points.
    EXPECT_EQ(parteDe(barra(0), QStyle::SC_ScrollBarSlider), QRect(0, 0, 14, 50));
    EXPECT_EQ(parteDe(barra(300), QStyle::SC_ScrollBarSlider), QRect(0, 150, 14, 50));
    EXPECT_EQ(parteDe(barra(150), QStyle::SC_ScrollBarSlider), QRect(0, 75, 14, 50));
}

TEST(ComplejosEstiloTest, TheHandleStaysLongEnoughForAFinger)
{
    QStyleOptionSlider larga = barra(0);
    larga.maximum = 1000000;
    EXPECT_EQ(parteDe(larga, QStyle::SC_ScrollBarSlider).height(), 32);
}

TEST(ComplejosEstiloTest, BeforeAndAfterTheHandleLiePagesAndNoArrows)
{
    EXPECT_EQ(parteDe(barra(150), QStyle::SC_ScrollBarSubPage), QRect(0, 0, 14, 75));
    EXPECT_EQ(parteDe(barra(150), QStyle::SC_ScrollBarAddPage), QRect(0, 125, 14, 75));
    EXPECT_TRUE(parteDe(barra(150), QStyle::SC_ScrollBarAddLine).isEmpty());
    EXPECT_TRUE(parteDe(barra(150), QStyle::SC_ScrollBarSubLine).isEmpty());
}

TEST(ComplejosEstiloTest, ABarThatLiesGoesAcross)
{
    QStyleOptionSlider lado = barra(300);
    lado.orientation = Qt::Horizontal;
    lado.rect = {0, 0, 200, 14};
    EXPECT_EQ(parteDe(lado, QStyle::SC_ScrollBarSlider), QRect(150, 0, 50, 14));
}

TEST(ComplejosEstiloTest, ABarOfNothingIsAllHandle)
{
    QStyleOptionSlider vacia = barra(0);
    vacia.maximum = 0;
    vacia.pageStep = 0;
    EXPECT_EQ(parteDe(vacia, QStyle::SC_ScrollBarSlider), vacia.rect);
}

TEST(ComplejosEstiloTest, AGroupHasItsTitleInsideTheCardAndItsContentsBelow)
{
    QStyleOptionGroupBox grupo;
    grupo.rect = {0, 0, 300, 200};
    grupo.text = u"Caja"_s;
    grupo.subControls = QStyle::SC_GroupBoxFrame;
    const auto parte = [&](QStyle::SubControl cual) { return *complejos::sitio(QStyle::CC_GroupBox, grupo, cual); };
    const QRect titulo = parte(QStyle::SC_GroupBoxLabel);
    const QRect dentro = parte(QStyle::SC_GroupBoxContents);
    EXPECT_EQ(parte(QStyle::SC_GroupBoxFrame), grupo.rect);
    EXPECT_EQ(titulo.left(), complejos::MargenTitulo);
    EXPECT_GT(titulo.top(), 0);
    EXPECT_GT(dentro.top(), titulo.bottom());
    EXPECT_TRUE(grupo.rect.contains(dentro));
}

TEST(ComplejosEstiloTest, AGroupWithoutATitleGivesItsContentsTheRoom)
{
    QStyleOptionGroupBox grupo;
    grupo.rect = {0, 0, 300, 200};
    grupo.subControls = QStyle::SC_GroupBoxFrame;
    EXPECT_EQ(complejos::sitio(QStyle::CC_GroupBox, grupo, QStyle::SC_GroupBoxContents), QRect(3, 3, 294, 194));
}

TEST(ComplejosEstiloTest, TheBoxOfAGroupStandsBeforeItsTitle)
{
    QStyleOptionGroupBox grupo;
    grupo.rect = {0, 0, 300, 200};
    grupo.text = u"Caja"_s;
    grupo.subControls = QStyle::SC_GroupBoxCheckBox;
    const auto parte = [&](QStyle::SubControl cual) { return *complejos::sitio(QStyle::CC_GroupBox, grupo, cual); };
    EXPECT_LT(parte(QStyle::SC_GroupBoxCheckBox).right(), parte(QStyle::SC_GroupBoxLabel).left());
}

TEST(ComplejosEstiloTest, TheArrowsOfACounterDoNotCoverItsNumber)
{
    QStyleOptionSpinBox contador;
    contador.rect = {0, 0, 120, 44};
    contador.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    const auto parte = [&](QStyle::SubControl cual) { return *complejos::sitio(QStyle::CC_SpinBox, contador, cual); };
    EXPECT_FALSE(parte(QStyle::SC_SpinBoxEditField).intersects(parte(QStyle::SC_SpinBoxUp)));
    EXPECT_FALSE(parte(QStyle::SC_SpinBoxEditField).intersects(parte(QStyle::SC_SpinBoxDown)));
    EXPECT_FALSE(parte(QStyle::SC_SpinBoxUp).intersects(parte(QStyle::SC_SpinBoxDown)));
    contador.buttonSymbols = QAbstractSpinBox::NoButtons;
    EXPECT_GT(parte(QStyle::SC_SpinBoxEditField).right(), 110);
}

TEST(ComplejosEstiloTest, WhatTheStyleDoesNotKnowIsLeftToItsBase)
{
    QStyleOptionSlider deslizador;
    EXPECT_FALSE(complejos::sitio(QStyle::CC_Slider, deslizador, QStyle::SC_SliderHandle).has_value());
}

} // namespace
} // namespace kestrane
