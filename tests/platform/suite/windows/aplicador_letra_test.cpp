#include "platform/suite/windows/aplicador_letra.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QToolTip>

#include <limits>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(AplicadorLetraTest, AllLettersAreOfOneFamilyAndOfTheSetting)
{
    QWidget ventana;
    QLabel rotulo{&ventana};
    rotulo.setFont(QFont{u"DejaVu Serif"_s});
    AplicadorLetra{}.AplicarLetra(ventana, 14);
    EXPECT_EQ(rotulo.font().family(), u"DejaVu Sans"_s);
    EXPECT_DOUBLE_EQ(rotulo.font().pointSizeF(), 14);
    EXPECT_EQ(ventana.font().family(), u"DejaVu Sans"_s);
}

TEST(AplicadorLetraTest, ASettingThatIsNoSizeGivesThatOfANewTerminal)
{
    for (const qint32 letra : {0, -5, std::numeric_limits<qint32>::min()}) {
        QWidget ventana;
        AplicadorLetra{}.AplicarLetra(ventana, letra);
        EXPECT_DOUBLE_EQ(ventana.font().pointSizeF(), 10) << letra;
    }
}

TEST(AplicadorLetraTest, WhatBelongsToNoWindowHasTheSameLetters)
{
    QWidget ventana;
    for (const qint32 letra : {14, 9}) {
        AplicadorLetra{}.AplicarLetra(ventana, letra);
        for (const QFont& puesta : {QApplication::font(), QToolTip::font()}) {
            EXPECT_EQ(puesta.family(), u"DejaVu Sans"_s);
            EXPECT_EQ(puesta.pointSize(), letra);
        }
    }
    AplicadorLetra{}.AplicarLetra(ventana, 1000000);
    EXPECT_EQ(QApplication::font().pointSize(), 48);
}

} // namespace
} // namespace kestrane
