#include "pipeline/forms/frm_parar.h"

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/forms/aspecto_anotado.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Counts how often a widget is painted.
class CuentaPintadas final : public QObject
{
public:
    explicit CuentaPintadas(QWidget& visto) { visto.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* evento) override
    {
        veces += evento->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int veces = 0;
};

class FrmPararTest : public testing::Test
{
protected:
    [[nodiscard]] int valor() const { return progreso.ventana()->barra().value(); }
    void incrementa(int veces)
    {
        for (int i = 0; i < veces; ++i)
            progreso.IncrementaBarra();
    }

    prueba::TiendaDePrueba tienda;
    ContextoEjecucion contexto{tienda.entorno()};
    prueba::AspectoAnotado aspecto;
    std::chrono::milliseconds ahora{1000};
    ProgresoEnVentana progreso{contexto, aspecto, nullptr, [this] { return ahora; }};
};

TEST_F(FrmPararTest, IsShownWithoutBeingModal)
{
    progreso.Muestra();
    EXPECT_TRUE(progreso.ventana()->isVisible());
    EXPECT_FALSE(progreso.ventana()->isModal());
    EXPECT_EQ(progreso.ventana()->objectName(), u"frmParar"_s);
}

TEST_F(FrmPararTest, StandsOnTheScreenBeforeTheBuilderStarts)
{
    progreso.Muestra();
    EXPECT_TRUE(progreso.ventana()->windowHandle()->isExposed());
}

TEST_F(FrmPararTest, EachStepAddsOne)
{
    progreso.Muestra();
    incrementa(3);
    EXPECT_EQ(valor(), 3);
}

TEST_F(FrmPararTest, AStepAtNinetyNineLeavesTheBarAtZero)
{
    progreso.Muestra();
    incrementa(99);
    EXPECT_EQ(valor(), 99);
    incrementa(1);
    EXPECT_EQ(valor(), 0);
}

TEST_F(FrmPararTest, TheBarGoesRoundAsOftenAsThereAreRecords)
{
    progreso.Muestra();
    incrementa(250);
    EXPECT_EQ(valor(), 50);
}

TEST_F(FrmPararTest, PaintsOnceInFortyMilliseconds)
{
    progreso.Muestra();
    CuentaPintadas pintadas{*progreso.ventana()};
    incrementa(50);
    EXPECT_EQ(pintadas.veces, 0);
    ahora += 39ms;
    incrementa(1);
    EXPECT_EQ(pintadas.veces, 0);
    ahora += 1ms;
    incrementa(1);
    EXPECT_EQ(pintadas.veces, 1);
    incrementa(20);
    EXPECT_EQ(pintadas.veces, 1);
}

TEST_F(FrmPararTest, TheBarItselfIsPaintedWithTheWindowAlone)
{
    progreso.Muestra();
    CuentaPintadas pintadas{progreso.ventana()->barra()};
    incrementa(60);
    EXPECT_EQ(pintadas.veces, 0);
    ahora += 40ms;
    incrementa(1);
    EXPECT_EQ(pintadas.veces, 1);
}

TEST_F(FrmPararTest, ClosingItTwiceIsHarmless)
{
    progreso.Muestra();
    progreso.cerrar();
    progreso.cerrar();
    EXPECT_EQ(progreso.ventana(), nullptr);
}

TEST_F(FrmPararTest, AStepAfterItWasClosedIsHarmless)
{
    progreso.Muestra();
    progreso.cerrar();
    progreso.IncrementaBarra();
    EXPECT_EQ(progreso.ventana(), nullptr);
}

TEST_F(FrmPararTest, ShownTwiceItIsOneWindowThatGoesOn)
{
    progreso.Muestra();
    incrementa(7);
    progreso.Muestra();
    EXPECT_EQ(valor(), 7);
}

TEST_F(FrmPararTest, ShownAfterItWasClosedItLoadsAnewFromZero)
{
    progreso.Muestra();
    incrementa(7);
    progreso.cerrar();
    aspecto.pasos.clear();
    progreso.Muestra();
    EXPECT_EQ(valor(), 0);
    EXPECT_TRUE(aspecto.pasos.contains(u"TraducirForm frmParar"_s));
}

TEST_F(FrmPararTest, ClosedWhileItIsComingToTheScreenIsHarmless)
{
    QTimer::singleShot(0, qApp, [this] { progreso.cerrar(); });
    progreso.Muestra();
    QCoreApplication::processEvents();
    EXPECT_EQ(progreso.ventana(), nullptr);
    progreso.IncrementaBarra();
    progreso.Muestra();
    EXPECT_TRUE(progreso.ventana()->isVisible());
}

TEST(CronometroDeMaquina, NeverGoesBack)
{
    const Cronometro cronometro = cronometroDeMaquina();
    const auto antes = cronometro();
    EXPECT_GE(antes, 0ms);
    EXPECT_LE(antes, cronometro());
}

} // namespace
} // namespace kestrane
