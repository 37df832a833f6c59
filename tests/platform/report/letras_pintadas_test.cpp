#include "platform/report/letras_pintadas.h"

#include <QImage>

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

constexpr double PuntosPorMilimetro = 10;

/// The smallest box around what is not white.
QRect tinta(const QImage& imagen)
{
    QRect caja;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            if (qGray(imagen.pixel(x, y)) < 128)
                caja |= QRect{x, y, 1, 1};
        }
    }
    return caja;
}

template<class Pinta>
QRect tintaDe(Pinta pinta)
{
    QImage imagen{600, 200, QImage::Format_RGB32};
    imagen.fill(Qt::white);
    QPainter pintor{&imagen};
    pinta(pintor);
    pintor.end();
    return tinta(imagen);
}

Estilo grande()
{
    Estilo estilo;
    estilo.cuerpo = 20;
    return estilo;
}

TEST(LetrasPintadas, LettersStandWhereTheyWereMeasured)
{
    LetrasPintadas letras{grande(), PuntosPorMilimetro};
    // A capital H has its stems 201 of 2048 units from the sides of its 1540.
    const double unidad = 20 * MilimetrosPorPunto * PuntosPorMilimetro / 2048;
    ASSERT_TRUE(letras.anade(u"HHH"_s, {100, 100}));
    EXPECT_TRUE(letras.hayPendientes());
    const QRect caja = tintaDe([&](QPainter& pintor) { letras.pinta(pintor); });
    EXPECT_NEAR(caja.left(), 100 + 201 * unidad, 1.5);
    EXPECT_NEAR(caja.right() + 1, 100 + (3 * 1540 - 201) * unidad, 1.5);
    EXPECT_NEAR(caja.bottom() + 1, 100, 1.5);
    EXPECT_NEAR(caja.top(), 100 - 1493 * unidad, 1.5);
    EXPECT_FALSE(letras.hayPendientes());
}

TEST(LetrasPintadas, ShapedTextsAreNotAmongThem)
{
    LetrasPintadas letras{grande(), PuntosPorMilimetro};
    EXPECT_FALSE(letras.anade(u"abc שלום"_s, {}));
    EXPECT_FALSE(letras.hayPendientes());
}

TEST(LetrasPintadas, AShapedTextIsAsLargeAsAPlainOne)
{
    LetrasPintadas letras{grande(), PuntosPorMilimetro};
    ASSERT_TRUE(letras.anade(u"HHH"_s, {100, 100}));
    const QRect sencillas = tintaDe([&](QPainter& pintor) { letras.pinta(pintor); });
    const QRect formadas = tintaDe([&](QPainter& pintor) { letras.pintaFormado(pintor, u"HHH"_s, {100, 100}); });
    EXPECT_NEAR(sencillas.left(), formadas.left(), 2);
    EXPECT_NEAR(sencillas.right(), formadas.right(), 2);
    EXPECT_NEAR(sencillas.top(), formadas.top(), 2);
    EXPECT_FALSE(tintaDe([&](QPainter& pintor) { letras.pintaFormado(pintor, u"שלום"_s, {100, 100}); }).isEmpty());
}

TEST(LetrasPintadas, AFullStopBehindATextFromRightToLeftStandsAtItsLeft)
{
    const LetrasPintadas letras{grande(), PuntosPorMilimetro};
    const auto pinta = [&](QPainter& pintor) {
        pintor.setLayoutDirection(Qt::LeftToRight); // as that of a window is
        letras.pintaFormado(pintor, u"שלום."_s, {100, 100});
    };
    const QRect todo = tintaDe(pinta);
    const QRect izquierda{todo.topLeft(), QSize{todo.width() / 12, todo.height()}};
    const QRect punto = tintaDe([&](QPainter& pintor) {
        pintor.setClipRect(izquierda);
        pinta(pintor);
    });
    EXPECT_FALSE(punto.isEmpty());
    EXPECT_LT(punto.height(), todo.height() / 3) << "a letter is higher";
}

} // namespace
} // namespace kestrane::report
