#include "pipeline/forms/ventana_con_barra.h"

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/forms/aspecto_anotado.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class VentanaConBarraTest : public testing::Test
{
protected:
    VentanaConBarraTest()
    {
        contexto.AnchoDiseno = 15360;
        contexto.AltoDiseno = 11085;
        contexto.AnchoVentana = 19200;
        contexto.AltoVentana = 14400;
    }
    prueba::TiendaDePrueba tienda;
    ContextoEjecucion contexto{tienda.entorno()};
    prueba::AspectoAnotado aspecto;
};

TEST(PuntosDeTwips, FifteenMakeAPoint)
{
    EXPECT_DOUBLE_EQ(puntosDeTwips(1440), 96);
    EXPECT_DOUBLE_EQ(puntosDeTwips(330), 22);
    EXPECT_DOUBLE_EQ(puntosDeTwips(0), 0);
}

TEST_F(VentanaConBarraTest, StandsOverTheMainFormFiftyTwipsInAndThreeHundredAndThirtyDown)
{
    const VentanaConBarra ventana{u"frmParar"_s, contexto, aspecto, nullptr};
    EXPECT_EQ(ventana.pos(), QPoint(103, 222));
}

TEST_F(VentanaConBarraTest, IsTranslatedPaintedAndScaledTwiceInThisOrder)
{
    const VentanaConBarra ventana{u"frmParar"_s, contexto, aspecto, nullptr};
    EXPECT_EQ(aspecto.pasos, (QStringList{u"TraducirForm frmParar"_s, u"PintarForm frmParar"_s, u"DarColorFondo"_s,
                                          u"EscalarForm frmParar de 15360x11085 a 15360x11085"_s,
                                          u"EscalarForm frmParar de 15360x11085 a 19200x14400"_s}));
}

TEST_F(VentanaConBarraTest, TakesTheThemesBackColour)
{
    const VentanaConBarra ventana{u"frmParar"_s, contexto, aspecto, nullptr};
    EXPECT_EQ(ventana.palette().color(QPalette::Window), QColor{Qt::cyan});
}

TEST_F(VentanaConBarraTest, KeepsItsOwnColourWhereThereIsNoTheme)
{
    AspectoNeutro neutro;
    const VentanaConBarra ventana{u"frmParar"_s, contexto, neutro, nullptr};
    EXPECT_EQ(ventana.palette().color(QPalette::Window), QDialog{}.palette().color(QPalette::Window));
}

TEST_F(VentanaConBarraTest, HasTheLabelAndABarFromZeroToAHundred)
{
    VentanaConBarra ventana{u"frmParar"_s, contexto, aspecto, nullptr};
    EXPECT_EQ(ventana.findChild<QLabel*>()->text(), u"Generando Reporte"_s);
    auto* barra = ventana.findChild<QProgressBar*>(u"ProgressBar1"_s);
    ASSERT_NE(barra, nullptr);
    EXPECT_EQ(barra->minimum(), 0);
    EXPECT_EQ(barra->maximum(), 100);
    EXPECT_EQ(barra->value(), 0);
}

TEST_F(VentanaConBarraTest, EscapeAndEnterDoNotCloseIt)
{
    VentanaConBarra ventana{u"frmParar"_s, contexto, aspecto, nullptr};
    ventana.show();
    QTest::keyClick(&ventana, Qt::Key_Escape);
    QTest::keyClick(&ventana, Qt::Key_Return);
    EXPECT_TRUE(ventana.isVisible());
}

TEST(AspectoNeutro, PutsWindowsOverTheMainWindowOrIntoTheCorner)
{
    QWidget principal;
    principal.move(40, 60);
    EXPECT_EQ(AspectoNeutro{&principal}.esquinaPrincipal(), principal.frameGeometry().topLeft());
    EXPECT_EQ(AspectoNeutro{}.esquinaPrincipal(), QPoint(0, 0));
}

} // namespace
} // namespace kestrane
