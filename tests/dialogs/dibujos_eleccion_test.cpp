#include "dialogs/dibujos_eleccion.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace kestrane {
namespace {

QImage dibujo(DibujoDe que)
{
    return dibujoDeEleccion(que, Qt::black).pixmap(96, 96).toImage();
}

TEST(DibujosEleccionTest, EachChoiceIsDrawnAndNoTwoAreAlike)
{
    const DibujoDe todos[] = {DibujoDe::UnEmpleado, DibujoDe::TodosLosEmpleados, DibujoDe::Detalle, DibujoDe::Total};
    QImage vacio = dibujo(DibujoDe::UnEmpleado);
    vacio.fill(Qt::transparent);
    for (const DibujoDe uno : todos) {
        EXPECT_NE(dibujo(uno), vacio);
        for (const DibujoDe otro : todos)
            EXPECT_EQ(dibujo(uno) == dibujo(otro), uno == otro);
    }
}

} // namespace
} // namespace kestrane
