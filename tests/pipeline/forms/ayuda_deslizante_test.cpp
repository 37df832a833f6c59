#include "pipeline/forms/menu_de_prueba.h"

#include <QDir>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>

/// The help panel, whose ticks the tests beat.
namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::MenuTest;

class AyudaTest : public MenuTest
{
protected:
    AyudaTest()
    {
        m_contexto.CarpetaPrograma = m_tienda.carpeta();
        QDir{m_tienda.carpeta()}.mkdir(u"ayudas"_s);
        QFile pagina{m_tienda.carpeta() + u"/ayudas/prilis1.html"_s};
        if (pagina.open(QIODevice::WriteOnly))
            pagina.write("<p>Todo lo que hizo la tienda</p>");
        pagina.close();
        abre();
    }
    QTimer& temporizador() { return *m_menu->findChild<QTimer*>(u"tmrAyuda"_s); }
    void tic()
    {
        QTimerEvent late{temporizador().timerId()};
        QCoreApplication::sendEvent(&temporizador(), &late);
    }
    /// As many ticks as it takes; how many.
    int hastaElFin()
    {
        int tics = 0;
        for (; temporizador().isActive() && tics < 1000; ++tics)
            tic();
        return tics;
    }
    int tope()
    {
        const QWidget& linea = control(u"fr_SeparacionH1"_s);
        return linea.mapTo(&*m_menu, QPoint{0, linea.height()}).y();
    }
    HelpPageViewer& panel() { return control<HelpPageViewer>(u"Open1"_s); }
    void pulsaAyuda() { m_menu->Haz(AccionMenu::Ayuda); }
};

TEST_F(AyudaTest, ItWaitsJustOutOfSightAHundredTwipsFromTheRightEdge)
{
    EXPECT_EQ(panel().y(), m_menu->height());
    EXPECT_EQ(panel().geometry().right(), m_menu->width() - 7 - 1); // 6.67 points
    EXPECT_FALSE(panel().isVisible());
}

TEST_F(AyudaTest, ItShowsThePageOfTheInstallationFromTheLowerEdge)
{
    pulsaAyuda();
    EXPECT_EQ(panel().pagina().toPlainText(), u"Todo lo que hizo la tienda"_s);
    EXPECT_EQ(panel().y(), m_menu->height());
    EXPECT_EQ(panel().height(), m_menu->height() - tope());
    EXPECT_TRUE(temporizador().isActive());
}

TEST_F(AyudaTest, EachTickMovesItUpAHundredTwips)
{
    pulsaAyuda();
    for (int i = 0; i < 3; ++i)
        tic();
    EXPECT_EQ(panel().y(), m_menu->height() - 20); // 300 twips
}

TEST_F(AyudaTest, ItStopsExactlyBelowTheHead)
{
    pulsaAyuda();
    const int camino = m_menu->height() - tope();
    EXPECT_EQ(hastaElFin(), static_cast<int>(std::ceil(camino * 15 / 100.0)) + 1);
    EXPECT_EQ(panel().y(), tope());
    EXPECT_FALSE(temporizador().isActive());
}

TEST_F(AyudaTest, ItsCloseControlSlidesItOutAgain)
{
    pulsaAyuda();
    hastaElFin();
    QTest::mouseClick(panel().findChild<QPushButton*>(u"cierreAyuda"_s), Qt::LeftButton);
    EXPECT_TRUE(temporizador().isActive());
    tic();
    EXPECT_GT(panel().y(), tope());
    hastaElFin();
    EXPECT_EQ(panel().y(), m_menu->height());
    EXPECT_FALSE(panel().isVisible());
}

TEST_F(AyudaTest, ACloseEventWhoseStateIsFalseLeavesItWhereItStands)
{
    pulsaAyuda();
    hastaElFin();
    emit panel().cierre(false);
    EXPECT_FALSE(temporizador().isActive());
    EXPECT_EQ(panel().y(), tope());
}

TEST_F(AyudaTest, ASecondPressWhileItIsOpenReopensThePageAndSlidesFromTheLowerEdge)
{
    pulsaAyuda();
    hastaElFin();
    panel().pagina().setPlainText(u"otra cosa"_s);
    pulsaAyuda();
    EXPECT_EQ(panel().pagina().toPlainText(), u"Todo lo que hizo la tienda"_s);
    EXPECT_EQ(panel().y(), m_menu->height());
    hastaElFin();
    EXPECT_EQ(panel().y(), tope());
}

TEST_F(AyudaTest, ItFollowsTheWindowWhenThatGetsAnotherSize)
{
    pulsaAyuda();
    hastaElFin();
    m_menu->resize(900, 700);
    asienta();
    EXPECT_EQ(panel().y(), tope());
    EXPECT_EQ(panel().geometry().bottom(), m_menu->height() - 1);
    EXPECT_EQ(panel().geometry().right(), 900 - 7 - 1);
}

} // namespace
} // namespace kestrane
