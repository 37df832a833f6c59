#include "platform/controls/grupo_botones.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class GrupoBotonesTest : public testing::Test
{
protected:
    BotonMenu* anade(const QString& leyenda)
    {
        auto* boton = new BotonMenu{leyenda, leyenda, &grupo};
        grupo.anade(boton);
        boton->show();
        return boton;
    }

    GrupoBotones grupo{u"Frame1"_s, u"Caja"_s, nullptr};
};

TEST_F(GrupoBotonesTest, WithoutAVisibleButtonItNeedsNoHeight)
{
    EXPECT_EQ(grupo.altoPara(200, 1), 0);
    anade(u"Uno"_s)->hide();
    EXPECT_EQ(grupo.altoPara(200, 1), 0);
}

TEST_F(GrupoBotonesTest, EachRowMakesItHigherByAButtonAndTheSpaceBetween)
{
    anade(u"Uno"_s);
    const int uno = grupo.altoPara(300, 1);
    anade(u"Dos"_s);
    anade(u"Tres"_s);
    EXPECT_EQ(grupo.altoPara(300, 1), uno + 2 * (44 + 4));
    EXPECT_EQ(grupo.altoPara(300, 2), uno + 44 + 4);
}

TEST_F(GrupoBotonesTest, AHiddenButtonLeavesNoGap)
{
    const BotonMenu* const uno = anade(u"Uno"_s);
    BotonMenu* const dos = anade(u"Dos"_s);
    const BotonMenu* const tres = anade(u"Tres"_s);
    grupo.resize(200, grupo.altoPara(200, 1));
    grupo.ponColumnas(1);
    const int lugar = dos->y();
    dos->hide();
    grupo.resize(200, grupo.altoPara(200, 1));
    grupo.ponColumnas(1);
    EXPECT_EQ(tres->y(), lugar);
    EXPECT_EQ(uno->y(), 0);
}

TEST_F(GrupoBotonesTest, ButtonsOfAnUnfinishedRowShareItsWholeWidth)
{
    const BotonMenu* const uno = anade(u"Uno"_s);
    anade(u"Dos"_s);
    const BotonMenu* const tres = anade(u"Tres"_s);
    grupo.resize(300, grupo.altoPara(300, 2));
    grupo.ponColumnas(2);
    EXPECT_EQ(uno->width(), (300 - 2 * 8 - 4) / 2);
    EXPECT_EQ(tres->width(), 300 - 2 * 8);
}

TEST_F(GrupoBotonesTest, HeightLeftOverGoesToTheButtons)
{
    const BotonMenu* const uno = anade(u"Uno"_s);
    const BotonMenu* const dos = anade(u"Dos"_s);
    grupo.resize(200, grupo.altoPara(200, 1) + 20);
    grupo.ponColumnas(1);
    EXPECT_EQ(uno->height(), 54);
    EXPECT_EQ(dos->height(), 54);
}

TEST_F(GrupoBotonesTest, HidingAButtonIsTold)
{
    BotonMenu* const uno = anade(u"Uno"_s);
    grupo.show();
    QCoreApplication::processEvents();
    const QSignalSpy avisos{&grupo, &GrupoBotones::cambiado};
    uno->hide();
    QCoreApplication::processEvents();
    EXPECT_GE(avisos.count(), 1);
}

TEST_F(GrupoBotonesTest, NoWordIsCutAtTheLeastWidth)
{
    const BotonMenu* const largo = anade(u"Regularizaciones"_s);
    EXPECT_EQ(grupo.anchoMinimo(), largo->minimumSizeHint().width() + 2 * 8);
}

} // namespace
} // namespace kestrane
