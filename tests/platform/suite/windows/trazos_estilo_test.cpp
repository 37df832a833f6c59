#include "platform/suite/windows/trazos_estilo.h"

#include <gtest/gtest.h>

#include <QImage>

#include <functional>

namespace kestrane {
namespace {

constexpr QRect Sitio{0, 0, 60, 40};

QPalette colores()
{
    QPalette colores;
    colores.setColor(QPalette::Window, Qt::cyan);
    colores.setColor(QPalette::Base, Qt::white);
    colores.setColor(QPalette::Button, QColor{100, 100, 100});
    colores.setColor(QPalette::ButtonText, Qt::black);
    colores.setColor(QPalette::Dark, Qt::black);
    colores.setColor(QPalette::Mid, Qt::darkCyan);
    colores.setColor(QPalette::Link, Qt::blue);
    colores.setColor(QPalette::LinkVisited, Qt::darkGreen);
    colores.setColor(QPalette::BrightText, Qt::yellow);
    colores.setColor(QPalette::Highlight, Qt::red);
    colores.setColor(QPalette::HighlightedText, Qt::magenta);
    return colores;
}

QStyleOption opcion(QStyle::State estado)
{
    QStyleOption nueva;
    nueva.rect = Sitio;
    nueva.palette = colores();
    nueva.state = estado;
    return nueva;
}

QImage pintado(const std::function<void(QPainter&)>& pinta)
{
    QImage imagen{Sitio.size(), QImage::Format_ARGB32_Premultiplied};
    imagen.fill(Qt::transparent);
    QPainter pintor{&imagen};
    pinta(pintor);
    return imagen;
}

QImage boton(QStyle::State estado, bool porDefecto = false)
{
    return pintado([&](QPainter& pintor) { trazos::boton(pintor, opcion(estado), porDefecto); });
}

QColor enMedio(const QImage& imagen)
{
    return imagen.pixelColor(Sitio.center());
}

bool hay(const QImage& imagen, const QColor& color)
{
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            if (imagen.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

TEST(TrazosEstiloTest, ACardIsTheColourOfItsWindowWithRoundCorners)
{
    const QImage imagen = pintado([](QPainter& pintor) { trazos::tarjeta(pintor, Sitio, colores()); });
    EXPECT_EQ(enMedio(imagen), QColor{Qt::cyan});
    EXPECT_EQ(imagen.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(imagen.pixelColor(30, 0), QColor{Qt::darkCyan});
}

TEST(TrazosEstiloTest, AFieldHasABorderAndWithTheKeyboardTheRing)
{
    const QImage quieto = pintado([](QPainter& pintor) { trazos::campo(pintor, Sitio, opcion(QStyle::State_Enabled)); });
    EXPECT_EQ(enMedio(quieto), QColor{Qt::white});
    EXPECT_EQ(quieto.pixelColor(30, 0), QColor{Qt::black});
    const QImage vivo = pintado([](QPainter& pintor) { trazos::campo(pintor, Sitio, opcion(QStyle::State_HasFocus)); });
    EXPECT_EQ(vivo.pixelColor(30, 0), QColor{Qt::blue});
    EXPECT_EQ(vivo.pixelColor(30, 1), QColor{Qt::blue});
}

TEST(TrazosEstiloTest, AButtonDarkensTowardsItsTextBelowThePointerAndPressed)
{
    constexpr QStyle::State Vivo = QStyle::State_Enabled;
    EXPECT_EQ(enMedio(boton(Vivo)), QColor(100, 100, 100));
    EXPECT_EQ(enMedio(boton(Vivo | QStyle::State_MouseOver)), QColor(93, 93, 93)); // 7 %
    EXPECT_EQ(enMedio(boton(Vivo | QStyle::State_Sunken)), QColor(84, 84, 84));    // 16 %
}

TEST(TrazosEstiloTest, AButtonThatCannotBeUsedDoesNotAnswerThePointer)
{
    EXPECT_EQ(enMedio(boton(QStyle::State_MouseOver)), QColor(100, 100, 100));
}

TEST(TrazosEstiloTest, TheDefaultButtonIsOfTheAccentAndOneSwitchedOnASelection)
{
    EXPECT_EQ(enMedio(boton(QStyle::State_Enabled, true)), QColor{Qt::darkGreen});
    EXPECT_EQ(enMedio(boton(QStyle::State_Enabled | QStyle::State_On)), QColor{Qt::red});
    const auto texto = [](QStyle::State estado, bool porDefecto) {
        return trazos::coloresDeTexto(opcion(estado), porDefecto).color(QPalette::ButtonText);
    };
    EXPECT_EQ(texto(QStyle::State_Enabled, true), QColor{Qt::yellow});
    EXPECT_EQ(texto(QStyle::State_Enabled | QStyle::State_On, false), QColor{Qt::magenta});
    EXPECT_EQ(texto(QStyle::State_Enabled, false), QColor{Qt::black});
}

TEST(TrazosEstiloTest, TheRingOfAButtonHasAGapToIt)
{
    const QImage imagen = boton(QStyle::State_Enabled | QStyle::State_HasFocus);
    EXPECT_EQ(imagen.pixelColor(30, 0), QColor{Qt::blue});
    EXPECT_EQ(imagen.pixelColor(30, 2).alpha(), 0);
    EXPECT_EQ(enMedio(imagen), QColor(100, 100, 100));
}

TEST(TrazosEstiloTest, BoxesAndCirclesAreFilledWhenTheyAreMarked)
{
    for (const auto marca : {trazos::casilla, trazos::circulo}) {
        const auto imagen = [&](QStyle::State estado) {
            return pintado([&](QPainter& pintor) {
                QStyleOption cuadrada = opcion(estado);
                cuadrada.rect = {0, 0, 36, 36};
                marca(pintor, cuadrada);
            });
        };
        EXPECT_FALSE(hay(imagen(QStyle::State_Off), Qt::darkGreen));
        EXPECT_TRUE(hay(imagen(QStyle::State_Off), Qt::white));
        EXPECT_TRUE(hay(imagen(QStyle::State_On), Qt::darkGreen));
        EXPECT_TRUE(hay(imagen(QStyle::State_On), Qt::yellow));
        EXPECT_TRUE(hay(imagen(QStyle::State_NoChange), Qt::yellow));
    }
}

TEST(TrazosEstiloTest, AnArrowPointsWhereItSays)
{
    // Its tip, 2.5 points from the middle, and nothing on the other side of the middle.
    const auto flecha = [](Qt::ArrowType hacia) {
        return pintado([&](QPainter& pintor) { trazos::flecha(pintor, {0, 0, 41, 41}, Qt::black, hacia); });
    };
    EXPECT_GT(flecha(Qt::DownArrow).pixelColor(20, 22).alpha(), 100);
    EXPECT_LT(flecha(Qt::DownArrow).pixelColor(20, 18).alpha(), 20);
    EXPECT_GT(flecha(Qt::UpArrow).pixelColor(20, 18).alpha(), 100);
    EXPECT_GT(flecha(Qt::LeftArrow).pixelColor(18, 20).alpha(), 100);
    EXPECT_GT(flecha(Qt::RightArrow).pixelColor(22, 20).alpha(), 100);
}

TEST(TrazosEstiloTest, ABarOfNoLengthPaintsNothing)
{
    const QImage imagen = pintado([](QPainter& pintor) { trazos::barra(pintor, {0, 0, 0, 20}, Qt::red); });
    EXPECT_FALSE(hay(imagen, Qt::red));
    EXPECT_EQ(enMedio(pintado([](QPainter& pintor) { trazos::barra(pintor, Sitio, Qt::red); })), QColor{Qt::red});
    EXPECT_EQ(enMedio(pintado([](QPainter& pintor) { trazos::surco(pintor, Sitio, colores()); })), QColor(100, 100, 100));
}

} // namespace
} // namespace kestrane
