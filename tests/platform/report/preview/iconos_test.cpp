#include "platform/report/preview/iconos.h"

#include <gtest/gtest.h>

#include <QImage>

#include <set>

namespace kestrane::report {
namespace {

/// How many points of the picture are drawn.
int dibujados(const QImage& imagen)
{
    int cuantos = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x)
            cuantos += imagen.pixelColor(x, y).alpha() > 128 ? 1 : 0;
    }
    return cuantos;
}

QImage imagen(Icono cual, QIcon::Mode modo = QIcon::Normal)
{
    return icono(cual, Qt::black).pixmap({48, 48}, 1.0, modo).toImage();
}

TEST(Iconos, EachIsDrawnWithinItsFrame)
{
    for (int i = 0; i <= int(Icono::Abajo); ++i) {
        const QImage una = imagen(Icono(i));
        EXPECT_GT(dibujados(una), 40) << i;
        EXPECT_EQ(dibujados(una.copy(0, 0, 48, 2)) + dibujados(una.copy(0, 46, 48, 2)), 0) << i;
        EXPECT_EQ(dibujados(una.copy(0, 0, 2, 48)) + dibujados(una.copy(46, 0, 2, 48)), 0) << i;
    }
}

TEST(Iconos, NoTwoAreAlike)
{
    std::set<QByteArray> vistos;
    for (int i = 0; i <= int(Icono::Abajo); ++i) {
        const QImage una = imagen(Icono(i));
        vistos.insert(QByteArray{reinterpret_cast<const char*>(una.constBits()), una.sizeInBytes()});
    }
    EXPECT_EQ(vistos.size(), 16U);
}

TEST(Iconos, WhatCannotBePressedIsFaint)
{
    EXPECT_EQ(dibujados(imagen(Icono::Imprimir, QIcon::Disabled)), 0);
}

} // namespace
} // namespace kestrane::report
