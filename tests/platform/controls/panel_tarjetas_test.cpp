#include "platform/controls/panel_tarjetas.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QScrollBar>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class PanelTarjetasTest : public testing::Test
{
protected:
    GrupoBotones* anade(const QString& nombre, int botones)
    {
        auto* tarjeta = new GrupoBotones{nombre, nombre, &panel.lienzo()};
        for (int i = 0; i < botones; ++i) {
            auto* boton = new BotonMenu{nombre + QString::number(i), u"Listado %1"_s.arg(i), tarjeta};
            tarjeta->anade(boton);
            boton->show();
        }
        panel.anade(tarjeta);
        return tarjeta;
    }
    void muestra(QSize tamano)
    {
        panel.resize(tamano);
        panel.show();
        QCoreApplication::processEvents();
    }

    PanelTarjetas panel{u"frGrupos"_s, nullptr};
};

TEST_F(PanelTarjetasTest, WhatFitsNeedsNoScrolling)
{
    anade(u"A"_s, 4);
    anade(u"B"_s, 4);
    muestra({600, 400});
    EXPECT_EQ(panel.verticalScrollBar()->maximum(), 0);
    for (const GrupoBotones* const tarjeta : panel.tarjetas())
        EXPECT_TRUE(panel.lienzo().rect().contains(tarjeta->geometry()));
}

TEST_F(PanelTarjetasTest, WhatDoesNotFitIsScrolledToByTheFocus)
{
    anade(u"A"_s, 6);
    anade(u"B"_s, 6);
    muestra({200, 300});
    ASSERT_GT(panel.verticalScrollBar()->maximum(), 0);
    BotonMenu* const primero = panel.tarjetas()[0]->botones().constFirst();
    primero->setFocus();
    for (int i = 0; i < 11; ++i)
        QTest::keyClick(panel.window()->focusWidget(), Qt::Key_Tab);
    const BotonMenu* const ultimo = panel.tarjetas()[1]->botones().constLast();
    ASSERT_TRUE(ultimo->hasFocus() || panel.window()->focusWidget() == ultimo);
    EXPECT_TRUE(panel.viewport()->rect().contains(QRect{ultimo->mapTo(panel.viewport(), QPoint{}), ultimo->size()}));
}

TEST_F(PanelTarjetasTest, ACardThatIsHiddenLeavesItsPlaceToTheOthers)
{
    GrupoBotones* const a = anade(u"A"_s, 3);
    const GrupoBotones* const b = anade(u"B"_s, 3);
    muestra({200, 600});
    EXPECT_GT(b->y(), a->y());
    const int lugar = a->y();
    a->hide();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(b->y(), lugar);
}

TEST_F(PanelTarjetasTest, ACardThatLostAllItsButtonsLeavesItsPlaceToo)
{
    const GrupoBotones* const a = anade(u"A"_s, 1);
    const GrupoBotones* const b = anade(u"B"_s, 3);
    muestra({200, 600});
    const int lugar = a->y();
    a->botones().constFirst()->hide();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(b->y(), lugar);
    EXPECT_TRUE(a->size().isEmpty());
}

} // namespace
} // namespace kestrane
