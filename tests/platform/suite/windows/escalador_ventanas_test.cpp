#include "platform/suite/windows/escalador_ventanas.h"

#include "platform/suite/windows/aplicador_letra.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

#include <limits>

namespace kestrane {
namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double NoEsNumero = std::numeric_limits<double>::quiet_NaN();

class EscaladorVentanasTest : public testing::Test
{
protected:
    EscaladorVentanasTest()
    {
        columna->setContentsMargins(7, 9, 11, 13);
        columna->setSpacing(5);
        columna->addWidget(rotulo);
        rotulo->setMinimumSize(91, 33);
        ventana.resize(1024, 739);
        AplicadorLetra{}.AplicarLetra(ventana, 10);
    }
    void escala(TamanoVentana destino, TamanoVentana origen) { EscaladorVentanas{}.EscalarForm(ventana, destino, origen); }
    [[nodiscard]] bool estaComoEmpezo() const
    {
        return columna->contentsMargins() == QMargins(7, 9, 11, 13) && columna->spacing() == 5 &&
               rotulo->minimumSize() == QSize(91, 33) && ventana.size() == QSize(1024, 739) &&
               qFuzzyCompare(rotulo->font().pointSizeF(), 10);
    }

    QWidget ventana;
    QVBoxLayout* columna = new QVBoxLayout{&ventana};
    QLabel* rotulo = new QLabel;
};

TEST_F(EscaladorVentanasTest, WidthsGoByTheWidthsHeightsByTheHeightsLettersByTheLesser)
{
    escala({3000, 4000}, {1000, 2000});
    EXPECT_EQ(rotulo->minimumSize(), QSize(273, 66));
    EXPECT_EQ(columna->contentsMargins(), QMargins(21, 18, 33, 26));
    EXPECT_EQ(columna->spacing(), 10);
    EXPECT_DOUBLE_EQ(rotulo->font().pointSizeF(), 20);
    EXPECT_EQ(ventana.size(), QSize(3072, 1478));
}

TEST_F(EscaladorVentanasTest, ThereAndBackComesOutExactlyWhereItBegan)
{
    escala({19200, 14400}, {15360, 11085});
    EXPECT_FALSE(estaComoEmpezo());
    escala({15360, 11085}, {19200, 14400});
    EXPECT_TRUE(estaComoEmpezo());
}

TEST_F(EscaladorVentanasTest, ManyRoundsThroughTheSizesDoNotDrift)
{
    for (int vuelta = 0; vuelta < 100; ++vuelta) {
        for (std::size_t i = 0; i < Tamanos.size(); ++i)
            escala(Tamanos[(i + 1) % Tamanos.size()], Tamanos[i]);
    }
    EXPECT_TRUE(estaComoEmpezo());
}

TEST_F(EscaladorVentanasTest, TwoStepsAreAsOne)
{
    escala({19200, 14400}, {15360, 11085});
    escala({30720, 22170}, {19200, 14400});
    EXPECT_EQ(rotulo->minimumSize(), QSize(182, 66));
    EXPECT_EQ(ventana.size(), QSize(2048, 1478));
}

TEST_F(EscaladorVentanasTest, ASizeThatIsNoneLeavesItsDirectionAsItIs)
{
    for (const double nada : {0.0, -15360.0, Infinito, NoEsNumero}) {
        escala({nada, nada}, {15360, 11085});
        EXPECT_TRUE(estaComoEmpezo()) << nada;
        escala({15360, 11085}, {nada, nada});
        EXPECT_TRUE(estaComoEmpezo()) << nada;
    }
    escala({0, 2000}, {1000, 1000});
    EXPECT_EQ(rotulo->minimumSize(), QSize(91, 66));
}

TEST_F(EscaladorVentanasTest, AbsurdSizesAreBoundedAndStillComeBack)
{
    escala({1e9, 1e9}, {15360, 11085});
    EXPECT_EQ(rotulo->minimumSize(), QSize(364, 132)); // four times
    EXPECT_DOUBLE_EQ(rotulo->font().pointSizeF(), 40);
    escala({15360, 11085}, {1e9, 1e9});
    EXPECT_TRUE(estaComoEmpezo());
    escala({1, 1}, {15360, 11085});
    EXPECT_EQ(rotulo->minimumSize(), QSize(46, 17)); // half
    escala({15360, 11085}, {1, 1});
    EXPECT_TRUE(estaComoEmpezo());
}

TEST_F(EscaladorVentanasTest, NoRowOfAbsurdSizesLeavesTheNumbers)
{
    for (int i = 0; i < 50; ++i)
        escala({1e300, 1e300}, {1, 1});
    EXPECT_EQ(rotulo->minimumSize(), QSize(364, 132));
    escala({1, 1}, {1e300, 1e300});
    EXPECT_EQ(rotulo->minimumSize(), QSize(46, 17));
    escala({1e308, 1e308}, {1, 1});
    EXPECT_EQ(rotulo->minimumSize(), QSize(364, 132));
}

TEST_F(EscaladorVentanasTest, AFactorThatNoNumberHoldsIsNone)
{
    escala({1e308, 1e308}, {1e-308, 1e-308});
    EXPECT_TRUE(estaComoEmpezo());
}

TEST_F(EscaladorVentanasTest, TheSettingOfLettersAndTheScaleMultiplyInEitherOrder)
{
    escala({20000, 20000}, {10000, 10000});
    AplicadorLetra{}.AplicarLetra(ventana, 14);
    EXPECT_DOUBLE_EQ(rotulo->font().pointSizeF(), 28);
    escala({10000, 10000}, {20000, 20000});
    EXPECT_DOUBLE_EQ(rotulo->font().pointSizeF(), 14);
}

TEST_F(EscaladorVentanasTest, AWindowThatTheOperatorResizedIsScaledFromThere)
{
    escala({20000, 20000}, {10000, 10000});
    ventana.resize(3000, 2000);
    escala({10000, 10000}, {20000, 20000});
    EXPECT_EQ(ventana.size(), QSize(1500, 1000));
}

TEST_F(EscaladorVentanasTest, WhatTheOperatorGaveTheWindowDoesNotScaleItsControls)
{
    escala({19200, 14400}, {15360, 11085});
    ventana.resize(1920, 1040); // drawn over the whole screen
    escala({15360, 11085}, {28800, 15600});
    EXPECT_EQ(ventana.size(), QSize(1024, 739));
    EXPECT_EQ(rotulo->minimumSize(), QSize(91, 33));
    EXPECT_TRUE(qFuzzyCompare(rotulo->font().pointSizeF(), 10));
}

TEST_F(EscaladorVentanasTest, DialogsOfTheWindowAreLeftAlone)
{
    auto* dialogo = new QDialog{&ventana};
    dialogo->setMinimumSize(200, 100);
    escala({20000, 20000}, {10000, 10000});
    EXPECT_EQ(dialogo->minimumSize(), QSize(200, 100));
}

} // namespace
} // namespace kestrane
