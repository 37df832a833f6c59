#include "platform/controls/tile_panel.h"

#include "platform/controls/ficha.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class TilePanelTest : public testing::Test
{
protected:
    /// Elements "0", "1", ... with the colour red, and a blank one at the end.
    void da(int cuantos)
    {
        ArrayPanel elementos;
        elementos.reserva(cuantos);
        for (int i = 0; i < cuantos; ++i)
            elementos[i] = {.Texto = u"Tienda %1"_s.arg(i), .ColorFondo = u"255"_s, .Imagen = {}, .Nombre = {}, .Codigo = {}};
        panel.da(elementos);
    }
    void muestra(QSize tamano)
    {
        panel.resize(tamano);
        panel.show();
        QCoreApplication::processEvents();
    }

    TilePanel panel{u"PanelTiendas"_s, nullptr};
};

TEST_F(TilePanelTest, AnArrayThatWasNeverAllocatedShowsNothing)
{
    panel.da(ArrayPanel{});
    EXPECT_TRUE(panel.fichas().isEmpty());
}

TEST_F(TilePanelTest, ItsButtonsAreTheElementsButTheBlankOnes)
{
    da(3);
    ASSERT_EQ(panel.fichas().size(), 3);
    EXPECT_EQ(panel.fichas()[2]->elemento().Texto, u"Tienda 2"_s);
}

TEST_F(TilePanelTest, APressTellsItsElementAndMarksItAlone)
{
    da(3);
    muestra({500, 300});
    QString pulsado;
    QObject::connect(&panel, &TilePanel::pulsado, [&pulsado](const ElementoPanel& cual) { pulsado = cual.Texto; });
    EXPECT_EQ(panel.elegido(), nullptr);
    QTest::mouseClick(panel.fichas()[1], Qt::LeftButton);
    EXPECT_EQ(pulsado, u"Tienda 1"_s);
    QTest::mouseClick(panel.fichas()[2], Qt::LeftButton);
    EXPECT_EQ(panel.elegido()->Texto, u"Tienda 2"_s);
    EXPECT_FALSE(panel.fichas()[1]->isChecked());
    QTest::mouseClick(panel.fichas()[2], Qt::LeftButton); // once more: it stays marked
    EXPECT_TRUE(panel.fichas()[2]->isChecked());
}

TEST_F(TilePanelTest, WhoHearsOfAPressMayGiveAnotherArrayThereAndThen)
{
    da(3);
    muestra({500, 300});
    QObject::connect(
        &panel, &TilePanel::pulsado, &panel, [this] { da(2); }, Qt::QueuedConnection);
    QTest::mouseClick(panel.fichas()[1], Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(panel.fichas().size(), 2);
    EXPECT_EQ(panel.elegido(), nullptr);
}

TEST_F(TilePanelTest, ElementsHaveTheirOwnColoursUnlessItIsToldOtherwise)
{
    panel.ponColores(Qt::green, Qt::blue);
    da(1);
    EXPECT_EQ(panel.fichas()[0]->color(), QColor(255, 0, 0));
    panel.usaColores(false);
    EXPECT_EQ(panel.fichas()[0]->color(), QColor(Qt::green));
}

TEST_F(TilePanelTest, AColourThatIsNoneGivesThePanelsOwn)
{
    ArrayPanel elementos;
    elementos.reserva(0);
    elementos[0].Texto = u"Ana"_s;
    elementos[0].ColorFondo = u"rojo"_s;
    panel.ponColores(Qt::green, {});
    panel.da(elementos);
    EXPECT_EQ(panel.fichas()[0]->color(), QColor(Qt::green));
}

TEST_F(TilePanelTest, TwoHundredElementsAreScrolledAndNoneOverlaps)
{
    da(200);
    muestra({500, 300});
    EXPECT_GT(panel.verticalScrollBar()->maximum(), 0);
    const QList<Ficha*>& fichas = panel.fichas();
    for (qsizetype i = 0; i < fichas.size(); ++i) {
        EXPECT_GE(fichas[i]->height(), 44);
        EXPECT_LE(fichas[i]->geometry().right(), panel.viewport()->width());
        for (qsizetype j = i + 1; j < std::min(i + 10, fichas.size()); ++j)
            EXPECT_FALSE(fichas[i]->geometry().intersects(fichas[j]->geometry()));
    }
}

TEST_F(TilePanelTest, BesideAPictureANameKeepsItsRoom)
{
    const QTemporaryDir carpeta;
    const QString foto = carpeta.filePath(u"ana.png"_s);
    QPixmap dibujo{10, 10};
    dibujo.fill(Qt::red);
    ASSERT_TRUE(dibujo.save(foto));
    da(3);
    muestra({700, 300});
    const int sinFoto = panel.fichas()[1]->width();
    ArrayPanel elementos;
    elementos.reserva(2);
    for (int i = 0; i < 3; ++i)
        elementos[i].Texto = u"Tienda %1"_s.arg(i);
    elementos[1].Imagen = foto;
    panel.da(elementos);
    EXPECT_GT(panel.fichas()[1]->width(), sinFoto);
    EXPECT_GE(panel.fichas()[1]->width(), panel.fichas()[1]->sizeHint().width());
}

TEST_F(TilePanelTest, TheMarkIsTakenBack)
{
    da(3);
    muestra({500, 300});
    QTest::mouseClick(panel.fichas()[1], Qt::LeftButton);
    panel.desmarca();
    EXPECT_EQ(panel.elegido(), nullptr);
    EXPECT_FALSE(panel.fichas()[1]->isChecked());
}

TEST_F(TilePanelTest, EnterPressesItsButtonsWhereItIsToldSo)
{
    QDialog ventana;
    TilePanel suyo{u"PanelTiendas"_s, &ventana};
    ArrayPanel elementos;
    elementos.reserva(1);
    elementos[0].Texto = u"Sur"_s;
    elementos[1].Texto = u"Norte"_s;
    suyo.da(elementos);
    suyo.resize(300, 200);
    ventana.show();
    const QSignalSpy pulsaciones{&suyo, &TilePanel::pulsado};
    suyo.enfoca();
    EXPECT_EQ(ventana.focusWidget(), suyo.fichas()[0]);
    QTest::keyClick(suyo.fichas()[0], Qt::Key_Return);
    EXPECT_EQ(pulsaciones.count(), 0);
    suyo.pulsaConEnter();
    QTest::keyClick(suyo.fichas()[0], Qt::Key_Return);
    EXPECT_EQ(pulsaciones.count(), 1);
}

} // namespace
} // namespace kestrane
