#include "platform/suite/windows/letra_ventana.h"

#include "platform/suite/windows/propiedades_ventana.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>

namespace kestrane {
namespace {

class LetraVentanaTest : public testing::Test
{
protected:
    LetraVentanaTest()
    {
        QFont letra{FamiliaLetra};
        letra.setPointSizeF(10);
        ventana.setFont(letra);
    }

    QWidget ventana;
    LetraVentana letras{ventana};
};

TEST_F(LetraVentanaTest, AControlHasTheSizeOfItsWindow)
{
    QLabel rotulo{&ventana};
    letras.ponTamano(12);
    EXPECT_DOUBLE_EQ(rotulo.font().pointSizeF(), 12);
}

TEST_F(LetraVentanaTest, ATitleIsAsMuchLargerAsItSays)
{
    QLabel titulo{&ventana};
    titulo.setProperty(propiedades::LetraRelativa, 1.5);
    letras.ponTamano(12);
    EXPECT_DOUBLE_EQ(titulo.font().pointSizeF(), 18);
    letras.ponTamano(14);
    EXPECT_DOUBLE_EQ(titulo.font().pointSizeF(), 21);
}

TEST_F(LetraVentanaTest, ATitleThatSaysNothingStaysAsMuchLargerAsItWas)
{
    QLabel titulo{&ventana};
    QFont grande = titulo.font();
    grande.setPointSizeF(20);
    titulo.setFont(grande);
    letras.ponTamano(12);
    letras.ponTamano(12);
    EXPECT_DOUBLE_EQ(titulo.font().pointSizeF(), 24);
}

TEST_F(LetraVentanaTest, ControlsOnATitleHaveTheSizeOfTheWindow)
{
    QGroupBox grupo{&ventana};
    grupo.setProperty(propiedades::LetraRelativa, 1.5);
    QLabel rotulo{&grupo};
    letras.ponTamano(12);
    EXPECT_DOUBLE_EQ(grupo.font().pointSizeF(), 18);
    EXPECT_DOUBLE_EQ(rotulo.font().pointSizeF(), 12);
}

TEST_F(LetraVentanaTest, SizeAndScaleMultiplyInEitherOrder)
{
    letras.ponTamano(12);
    letras.ponEscala(1.5);
    EXPECT_DOUBLE_EQ(ventana.font().pointSizeF(), 18);

    QWidget otra;
    LetraVentana deOtra{otra};
    deOtra.ponEscala(1.5);
    deOtra.ponTamano(12);
    EXPECT_DOUBLE_EQ(otra.font().pointSizeF(), 18);
}

TEST_F(LetraVentanaTest, WithoutASizeTheWindowsOwnIsScaled)
{
    letras.ponEscala(2);
    EXPECT_DOUBLE_EQ(ventana.font().pointSizeF(), 20);
    letras.ponEscala(1);
    EXPECT_DOUBLE_EQ(ventana.font().pointSizeF(), 10);
}

TEST_F(LetraVentanaTest, AControlThatComesLaterIsLikeTheOthers)
{
    letras.ponTamano(12);
    letras.ponEscala(1.5);
    QLabel nuevo{&ventana};
    letras.ponEscala(1);
    EXPECT_DOUBLE_EQ(nuevo.font().pointSizeF(), 12);
}

TEST_F(LetraVentanaTest, BoldStaysBold)
{
    QLabel titulo{&ventana};
    QFont negrita = titulo.font();
    negrita.setBold(true);
    titulo.setFont(negrita);
    letras.ponTamano(14);
    EXPECT_TRUE(titulo.font().bold());
}

TEST_F(LetraVentanaTest, NoSizeIsUnreadable)
{
    QLabel rotulo{&ventana};
    letras.ponTamano(1e9);
    letras.ponEscala(4);
    EXPECT_DOUBLE_EQ(rotulo.font().pointSizeF(), 96);
    letras.ponTamano(0.001);
    letras.ponEscala(0.5);
    EXPECT_DOUBLE_EQ(rotulo.font().pointSizeF(), 6);
}

} // namespace
} // namespace kestrane
