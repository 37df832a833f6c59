#include "dialogs/dibujos_formato.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace kestrane {
namespace {

/// How many points of the drawing have ink in them.
int tinta(const QImage& dibujo)
{
    int puntos = 0;
    for (int y = 0; y < dibujo.height(); ++y) {
        for (int x = 0; x < dibujo.width(); ++x)
            puntos += dibujo.pixelColor(x, y).alpha() > 128;
    }
    return puntos;
}

QImage dibujo(bool ticket)
{
    return dibujoDeFormato(ticket, Qt::black).pixmap(96, 96).toImage();
}

TEST(DibujosFormatoTest, ASheetAndATicketAreDrawnAndTellApart)
{
    EXPECT_GT(tinta(dibujo(false)), 200);
    EXPECT_GT(tinta(dibujo(true)), 200);
    EXPECT_NE(dibujo(false), dibujo(true));
}

} // namespace
} // namespace kestrane
