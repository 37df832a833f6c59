#include "platform/report/preview/lienzo_de_prueba.h"

#include <QApplication>
#include <QClipboard>
#include <QWheelEvent>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class LienzoEntrada : public prueba::LienzoDePrueba
{
protected:
    void rueda(int muescas, Qt::KeyboardModifiers teclas, QPointF donde = {400, 300})
    {
        QWheelEvent evento{
            donde, lienzo.viewport()->mapToGlobal(donde), {}, {0, 120 * muescas}, Qt::NoButton, teclas, Qt::NoScrollPhase, false};
        QApplication::sendEvent(lienzo.viewport(), &evento);
    }
    void tecla(Qt::Key cual) { QTest::keyClick(&lienzo, cual); }
    void arrastra(Qt::MouseButton boton, QPoint desde, QPoint hasta)
    {
        QTest::mousePress(lienzo.viewport(), boton, {}, desde);
        // Qt Test's own moves carry no buttons.
        for (const QPoint& donde : {(desde + hasta) / 2, hasta}) {
            QMouseEvent mueve{QEvent::MouseMove, donde, lienzo.viewport()->mapToGlobal(donde), boton, boton, {}};
            QApplication::sendEvent(lienzo.viewport(), &mueve);
        }
        QTest::mouseRelease(lienzo.viewport(), boton, {}, hasta);
    }
    [[nodiscard]] QString copiado()
    {
        lienzo.copia();
        return QApplication::clipboard()->text();
    }
    [[nodiscard]] int y() const { return lienzo.verticalScrollBar()->value(); }
};

TEST_F(LienzoEntrada, TheWheelMovesThePages)
{
    rueda(-3, {});
    EXPECT_GT(y(), 0);
    rueda(3, {});
    EXPECT_EQ(y(), 0);
}

TEST_F(LienzoEntrada, TheWheelWithControlEnlarges)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 100});
    rueda(1, Qt::ControlModifier);
    EXPECT_GT(lienzo.porcentaje(), 100);
    rueda(-2, Qt::ControlModifier);
    EXPECT_LT(lienzo.porcentaje(), 100);
}

TEST_F(LienzoEntrada, EnlargingKeepsWhatIsUnderThePointer)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 200});
    lienzo.vaA(1, 100);
    const QPointF donde{300, 200};
    const QRectF antes = lienzo.cajaEnVentana(1);
    const QPointF parte{(donde.x() - antes.x()) / antes.width(), (donde.y() - antes.y()) / antes.height()};
    rueda(2, Qt::ControlModifier, donde);
    const QRectF despues = lienzo.cajaEnVentana(1);
    EXPECT_NEAR((donde.x() - despues.x()) / despues.width(), parte.x(), 0.002);
    EXPECT_NEAR((donde.y() - despues.y()) / despues.height(), parte.y(), 0.002);
}

TEST_F(LienzoEntrada, HomeAndEndGoToTheFirstAndTheLastPage)
{
    tecla(Qt::Key_End);
    EXPECT_EQ(lienzo.paginaActual(), 2);
    tecla(Qt::Key_Home);
    EXPECT_EQ(lienzo.paginaActual(), 0);
}

TEST_F(LienzoEntrada, PageDownGoesToTheNextPageWhereItIsWhole)
{
    lienzo.ponZoom({Zoom::Modo::Pagina, 0});
    tecla(Qt::Key_PageDown);
    EXPECT_EQ(lienzo.paginaActual(), 1);
    tecla(Qt::Key_PageUp);
    EXPECT_EQ(lienzo.paginaActual(), 0);
    tecla(Qt::Key_PageUp);
    EXPECT_EQ(lienzo.paginaActual(), 0);
}

TEST_F(LienzoEntrada, PageDownShowsTheRestOfALargePageFirst)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 100});
    tecla(Qt::Key_PageDown);
    EXPECT_LT(lienzo.cajaEnVentana(0).top(), 0);
    EXPECT_GT(lienzo.cajaEnVentana(0).bottom(), 0);
    tecla(Qt::Key_PageDown);
    EXPECT_NEAR(lienzo.cajaEnVentana(1).top(), 8, 1);
    tecla(Qt::Key_PageUp);
    EXPECT_EQ(lienzo.paginaActual(), 0);
}

TEST_F(LienzoEntrada, ArrowsMoveALittle)
{
    tecla(Qt::Key_Down);
    EXPECT_GT(y(), 0);
    EXPECT_LT(y(), 100);
    tecla(Qt::Key_Up);
    EXPECT_EQ(y(), 0);
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 300});
    const int x = lienzo.horizontalScrollBar()->value();
    tecla(Qt::Key_Right);
    EXPECT_GT(lienzo.horizontalScrollBar()->value(), x);
}

TEST_F(LienzoEntrada, DraggingSelectsText)
{
    const QRectF caja = lienzo.cajaDeTexto(0, 0, {0, 4});
    arrastra(Qt::LeftButton, {int(caja.left()), int(caja.center().y())}, {int(caja.right()), int(caja.center().y())});
    EXPECT_EQ(copiado(), u"Pelu"_s);
}

TEST_F(LienzoEntrada, DraggingGoesOverCells)
{
    arrastra(Qt::LeftButton, lienzo.cajaDeTexto(0, 0, {0, 1}).topLeft().toPoint() + QPoint{0, 4},
             lienzo.cajaDeTexto(0, 1, {4, 5}).bottomRight().toPoint() - QPoint{0, 4});
    EXPECT_EQ(copiado(), u"Peluquería\t12,50"_s);
}

TEST_F(LienzoEntrada, APressTakesTheSelectionAway)
{
    lienzo.seleccionaPagina();
    QTest::mouseClick(lienzo.viewport(), Qt::LeftButton, {}, {200, 300});
    EXPECT_FALSE(lienzo.haySeleccion());
}

TEST_F(LienzoEntrada, APressWithShiftExtendsTheSelection)
{
    const QRectF caja = lienzo.cajaDeTexto(0, 0, {0, 10});
    QTest::mouseClick(lienzo.viewport(), Qt::LeftButton, {}, {int(caja.left()) + 1, int(caja.center().y())});
    QTest::mouseClick(lienzo.viewport(), Qt::LeftButton, Qt::ShiftModifier, {int(caja.right()), int(caja.center().y())});
    EXPECT_EQ(copiado(), u"Peluquería"_s);
}

TEST_F(LienzoEntrada, ADoublePressSelectsTheCell)
{
    QTest::mouseDClick(lienzo.viewport(), Qt::LeftButton, {}, enTexto(0, 1, 0, 5));
    EXPECT_EQ(copiado(), u"12,50"_s);
}

TEST_F(LienzoEntrada, ADoublePressBesideTheTextSelectsNothing)
{
    QTest::mouseDClick(lienzo.viewport(), Qt::LeftButton, {}, {200, 400});
    EXPECT_FALSE(lienzo.haySeleccion());
}

TEST_F(LienzoEntrada, TheMiddleButtonDragsThePages)
{
    arrastra(Qt::MiddleButton, {300, 400}, {300, 250});
    EXPECT_EQ(y(), 150);
    EXPECT_FALSE(lienzo.haySeleccion());
}

TEST_F(LienzoEntrada, ThePointerTellsWhereThereIsText)
{
    QTest::mouseMove(lienzo.viewport(), enTexto(0, 0, 0, 10));
    EXPECT_EQ(lienzo.viewport()->cursor().shape(), Qt::IBeamCursor);
    QTest::mouseMove(lienzo.viewport(), {300, 500});
    EXPECT_EQ(lienzo.viewport()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(LienzoEntrada, TwoFingersEnlarge)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 100});
    QPointingDevice* pantalla = QTest::createTouchDevice();
    QTest::touchEvent(&lienzo, pantalla).press(0, {350, 300}).press(1, {450, 300});
    for (int paso = 10; paso <= 100; paso += 10)
        QTest::touchEvent(&lienzo, pantalla).move(0, {350 - paso, 300}).move(1, {450 + paso, 300});
    QTest::touchEvent(&lienzo, pantalla).release(0, {250, 300}).release(1, {550, 300});
    EXPECT_GT(lienzo.porcentaje(), 150);
}

} // namespace
} // namespace kestrane::report
