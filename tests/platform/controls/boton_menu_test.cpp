#include "platform/controls/boton_menu.h"

#include <gtest/gtest.h>

#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(BotonMenuTest, AShortCaptionTakesAFingersHeight)
{
    const BotonMenu boton{u"cmd"_s, u"Clientes"_s, nullptr};
    EXPECT_EQ(boton.heightForWidth(200), 44);
    EXPECT_EQ(boton.minimumSizeHint().height(), 44);
}

TEST(BotonMenuTest, ALongCaptionBreaksOverAsManyLinesAsItNeeds)
{
    const BotonMenu boton{u"cmd"_s, u"Devoluciones de Consumo Interno a Almacen"_s, nullptr};
    const int lineas = boton.heightForWidth(120) / boton.fontMetrics().height();
    EXPECT_GE(lineas, 3);
    EXPECT_LT(boton.heightForWidth(600), boton.heightForWidth(120));
}

TEST(BotonMenuTest, ItIsNeverNarrowerThanItsLongestWord)
{
    const BotonMenu boton{u"cmd"_s, u"a Regularizaciones b"_s, nullptr};
    EXPECT_GE(boton.minimumSizeHint().width(), boton.fontMetrics().horizontalAdvance(u"Regularizaciones"_s));
}

TEST(BotonMenuTest, TheNearestStraightAheadComesBeforeOneBeside)
{
    const QRect desde{100, 100, 40, 40};
    const QList<QRect> otros{{100, 300, 40, 40}, {160, 180, 40, 40}, {100, 180, 40, 40}, {100, 20, 40, 40}, {180, 100, 40, 40}};
    EXPECT_EQ(vecino(desde, otros, Qt::Key_Down), 2);
    EXPECT_EQ(vecino(desde, otros, Qt::Key_Up), 3);
    EXPECT_EQ(vecino(desde, otros, Qt::Key_Right), 4);
    EXPECT_EQ(vecino(desde, otros, Qt::Key_Left), -1);
}

class DosBotones : public testing::Test
{
protected:
    DosBotones()
    {
        izquierdo.setGeometry(0, 0, 100, 44);
        derecho.setGeometry(120, 0, 100, 44);
        ventana.resize(240, 100);
        ventana.show();
        izquierdo.setFocus();
    }

    QWidget ventana;
    BotonMenu izquierdo{u"uno"_s, u"Uno"_s, &ventana};
    BotonMenu derecho{u"dos"_s, u"Dos"_s, &ventana};
};

TEST_F(DosBotones, AnArrowLeadsToTheNextAndStaysWhereThereIsNone)
{
    QTest::keyClick(&izquierdo, Qt::Key_Right);
    EXPECT_EQ(ventana.focusWidget(), &derecho);
    QTest::keyClick(&derecho, Qt::Key_Right);
    EXPECT_EQ(ventana.focusWidget(), &derecho);
}

TEST_F(DosBotones, ArrowsPassOverWhatIsHiddenOrDisabled)
{
    derecho.hide();
    QTest::keyClick(&izquierdo, Qt::Key_Right);
    EXPECT_EQ(ventana.focusWidget(), &izquierdo);
    derecho.show();
    derecho.setEnabled(false);
    QTest::keyClick(&izquierdo, Qt::Key_Right);
    EXPECT_EQ(ventana.focusWidget(), &izquierdo);
}

TEST_F(DosBotones, EnterAndTheSpaceBarPressIt)
{
    int pulsado = 0;
    QObject::connect(&izquierdo, &QPushButton::clicked, [&pulsado] { ++pulsado; });
    QTest::keyClick(&izquierdo, Qt::Key_Space);
    EXPECT_EQ(pulsado, 1);
    QTest::keyClick(&izquierdo, Qt::Key_Return);
    EXPECT_EQ(pulsado, 2);
}

} // namespace
} // namespace kestrane
