#include "pipeline/forms/frm_esperar.h"

#include "apoyo/tienda_de_prueba.h"
#include "pipeline/forms/aspecto_anotado.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QWindow>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Ticks as fast as the event loop turns, or when a test says so.
class TicsAnotados final : public FuenteDeTics
{
public:
    void empieza(QWidget& ventana, const std::function<void()>& tic) override
    {
        late = tic;
        m_temporizador = std::make_unique<QTimer>();
        QObject::connect(m_temporizador.get(), &QTimer::timeout, &ventana, [this] {
            ++tics;
            late();
        });
        if (solos)
            m_temporizador->start(0);
    }
    void para() override
    {
        m_temporizador->stop();
        ++paradas;
    }

    bool solos = false;
    int tics = 0;
    int paradas = 0;
    std::function<void()> late;

private:
    std::unique_ptr<QTimer> m_temporizador;
};

class FrmEsperarTest : public testing::Test
{
protected:
    prueba::TiendaDePrueba tienda;
    ContextoEjecucion contexto{tienda.entorno()};
    prueba::AspectoAnotado aspecto;
    TicsAnotados tics;
};

TEST_F(FrmEsperarTest, LoadsAsThePartnerWindowDoesAndThenStartsItsTicks)
{
    const FrmEsperar ventana{contexto, aspecto, nullptr, tics};
    EXPECT_EQ(ventana.objectName(), u"frmEsperar"_s);
    EXPECT_EQ(ventana.pos(), QPoint(103, 222));
    EXPECT_EQ(aspecto.pasos.size(), 5);
    EXPECT_TRUE(tics.late);
}

TEST_F(FrmEsperarTest, ItsSecondLabelIsHidden)
{
    FrmEsperar ventana{contexto, aspecto, nullptr, tics};
    ventana.show();
    const auto rotulos = ventana.findChildren<QLabel*>();
    ASSERT_EQ(rotulos.size(), 2);
    EXPECT_EQ(rotulos[0]->text(), u"Generando Reporte"_s);
    EXPECT_TRUE(rotulos[0]->isVisible());
    EXPECT_EQ(rotulos[1]->text(), u"formulario utilizado para dar tiempo a carga los report"_s);
    EXPECT_FALSE(rotulos[1]->isVisible());
}

TEST_F(FrmEsperarTest, EachTickAddsOneAndTheHundredthCloses)
{
    FrmEsperar ventana{contexto, aspecto, nullptr, tics};
    ventana.show();
    for (int tic = 1; tic < 100; ++tic) {
        tics.late();
        ASSERT_EQ(ventana.barra().value(), tic);
    }
    EXPECT_TRUE(ventana.isVisible());
    tics.late();
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_EQ(ventana.barra().value(), 0);
    EXPECT_EQ(tics.paradas, 1);
}

TEST_F(FrmEsperarTest, ClosingItDoesNotCutTheWaitShort)
{
    FrmEsperar ventana{contexto, aspecto, nullptr, tics};
    ventana.show();
    tics.late();
    EXPECT_FALSE(ventana.windowHandle()->close()) << "as Alt+F4 does";
    EXPECT_TRUE(ventana.isVisible());
    for (int tic = 1; tic < 100; ++tic)
        tics.late();
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(FrmEsperarTest, AClockThatOutlivesItsWindowStopsWithoutHarm)
{
    TicsDeReloj reloj;
    reloj.para();
    {
        QWidget ventana;
        reloj.empieza(ventana, [] {});
    }
    reloj.para();
    QWidget otra;
    reloj.empieza(otra, [] {});
    EXPECT_TRUE(otra.findChild<QTimer*>(u"tmr_barra"_s)->isActive());
}

TEST_F(FrmEsperarTest, TheWaitIsModalAndComesBackAfterAHundredTicks)
{
    tics.solos = true;
    bool modal = false;
    QTimer::singleShot(0, qApp, [&modal] { modal = QApplication::activeModalWidget()->objectName() == u"frmEsperar"_s; });
    EsperaEnVentana{contexto, aspecto, tics}.Muestra();
    EXPECT_TRUE(modal);
    EXPECT_EQ(tics.tics, 100);
}

TEST_F(FrmEsperarTest, TheSecondWaitIsAsLongAsTheFirst)
{
    tics.solos = true;
    EsperaEnVentana espera{contexto, aspecto, tics};
    espera.Muestra();
    espera.Muestra();
    EXPECT_EQ(tics.tics, 200);
}

TEST_F(FrmEsperarTest, TheTimerTicksEveryFiftyMilliseconds)
{
    TicsDeReloj reloj;
    const FrmEsperar ventana{contexto, aspecto, nullptr, reloj};
    const auto* temporizador = ventana.findChild<QTimer*>(u"tmr_barra"_s);
    ASSERT_NE(temporizador, nullptr);
    EXPECT_EQ(temporizador->interval(), 50);
    EXPECT_TRUE(temporizador->isActive());
}

/// The two that follow wait for the real five seconds.
TEST_F(FrmEsperarTest, TheRealWaitStillStandsShortlyBeforeFiveSeconds)
{
    TicsDeReloj reloj;
    bool sigue = false;
    QTimer::singleShot(4500ms, Qt::PreciseTimer, qApp, [&sigue] { sigue = QApplication::activeModalWidget() != nullptr; });
    EsperaEnVentana{contexto, aspecto, reloj}.Muestra();
    EXPECT_TRUE(sigue);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FrmEsperarTest, TheRealWaitKeepsTheOtherWindowsPaintedButOutOfReach)
{
    TicsDeReloj reloj;
    QDialog otra;
    otra.show();
    bool cerrada = false;
    QObject::connect(&otra, &QDialog::finished, &otra, [&cerrada] { cerrada = true; });
    bool vivos = false;
    QTimer::singleShot(1s, qApp, [&] {
        QTest::keyClick(otra.windowHandle(), Qt::Key_Escape);
        vivos = true;
    });
    EsperaEnVentana{contexto, aspecto, reloj}.Muestra();
    EXPECT_TRUE(vivos);
    EXPECT_FALSE(cerrada);
}

} // namespace
} // namespace kestrane
