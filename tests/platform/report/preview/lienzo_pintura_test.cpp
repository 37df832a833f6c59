#include "platform/report/preview/lienzo_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class LienzoPintura : public prueba::LienzoDePrueba
{
protected:
    void busca(const QString& texto)
    {
        buscador.busca(texto, 0);
        ASSERT_TRUE(QTest::qWaitFor([this] { return buscador.terminado(); }));
    }
    /// The paper's colour at the left rim of a stretch, where letters leave it free.
    [[nodiscard]] QColor fondoDe(int pagina, int tramo, Trecho trecho)
    {
        const QRectF caja = lienzo.cajaDeTexto(pagina, tramo, trecho);
        return foto().pixelColor(QPointF{caja.center().x(), caja.top() + 1.5}.toPoint());
    }
};

TEST_F(LienzoPintura, PaperIsWhiteOnAGreyGround)
{
    const QImage imagen = foto();
    EXPECT_EQ(imagen.pixelColor(lienzo.cajaEnVentana(0).center().toPoint()), QColor{Qt::white});
    EXPECT_NE(imagen.pixelColor(3, 300), QColor{Qt::white});
}

TEST_F(LienzoPintura, OnlyPagesInSightAreComposedAndPainted)
{
    prueba::FuenteDePrueba grande{16000, 16000};
    PaginasVista suyas{grande, [](const QString&) {}};
    Lienzo otro{suyas, buscador};
    otro.resize(900, 700);
    otro.show();
    static_cast<void>(otro.grab());
    otro.vaAPagina(15000);
    static_cast<void>(otro.grab());
    EXPECT_TRUE(grande.pedidas.contains(15000));
    EXPECT_LE(grande.pedidas.size(), 8U);
}

TEST_F(LienzoPintura, AllHitsAreMarkedAndTheCurrentOneStandsOut)
{
    fuente.hojas[0] = {u"Corte|Corte"_s};
    paginas.olvida();
    busca(u"corte"_s);
    const QColor actual = fondoDe(0, 0, {0, 5});
    const QColor otro = fondoDe(0, 1, {0, 5});
    EXPECT_NE(actual, QColor{Qt::white});
    EXPECT_NE(otro, QColor{Qt::white});
    EXPECT_NE(actual, otro);
}

TEST_F(LienzoPintura, AHitThatIsBrokenOverLinesIsMarkedOnEachOfThem)
{
    fuente.hojas[0] = {u"Peluquería\ncentral"_s, u""_s, u"Peluquería"_s};
    paginas.olvida();
    busca(u"peluqueria central"_s);
    ASSERT_EQ(buscador.cuenta(), 1);
    EXPECT_NE(fondoDe(0, 0, {0, 10}), QColor{Qt::white});
    EXPECT_NE(fondoDe(0, 1, {0, 7}), QColor{Qt::white});
    EXPECT_EQ(fondoDe(0, 2, {0, 10}), QColor{Qt::white}) << "another cell with one of the words";
}

TEST_F(LienzoPintura, AHitInTextFromRightToLeftIsMarkedAtItsRightEnd)
{
    const QString shalom = u"\u05E9\u05DC\u05D5\u05DD"_s;
    fuente.hojas[0] = {shalom};
    paginas.olvida();
    busca(shalom.left(1));
    ASSERT_EQ(buscador.cuenta(), 1);
    const QRectF todo = lienzo.cajaDeTexto(0, 0, {0, 4});
    const QImage imagen = foto();
    EXPECT_NE(imagen.pixelColor(QPointF{todo.right() - 2, todo.top() + 1.5}.toPoint()), QColor{Qt::white});
    EXPECT_EQ(imagen.pixelColor(QPointF{todo.left() + 2, todo.top() + 1.5}.toPoint()), QColor{Qt::white});
}

TEST_F(LienzoPintura, WhatIsNotFoundIsNotMarked)
{
    busca(u"corte"_s);
    EXPECT_EQ(fondoDe(0, 0, {0, 5}), QColor{Qt::white});
}

TEST_F(LienzoPintura, TheSelectionIsShown)
{
    lienzo.seleccionaPagina();
    EXPECT_NE(fondoDe(0, 1, {0, 5}), QColor{Qt::white});
    lienzo.quitaSeleccion();
    EXPECT_EQ(fondoDe(0, 1, {0, 5}), QColor{Qt::white});
}

TEST_F(LienzoPintura, APageThatFailsIsBlankPaper)
{
    fuente.alComponer = [](int) { throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero}; };
    paginas.olvida();
    EXPECT_EQ(foto().pixelColor(lienzo.cajaEnVentana(0).center().toPoint()), QColor{Qt::white});
}

TEST_F(LienzoPintura, AnEmptyReportSaysSo)
{
    prueba::FuenteDePrueba vacia{QList<QStringList>{}};
    PaginasVista suyas{vacia, [](const QString&) {}};
    Lienzo otro{suyas, buscador};
    otro.resize(600, 400);
    const QImage imagen = otro.viewport()->grab().toImage();
    bool hayTexto = false;
    for (int x = 150; x < 450; ++x)
        hayTexto = hayTexto || imagen.pixelColor(x, imagen.height() / 2) != imagen.pixelColor(2, 2);
    EXPECT_TRUE(hayTexto);
}

TEST_F(LienzoPintura, ScrollingPaintsWhatComesIntoSight)
{
    static_cast<void>(foto());
    fuente.pedidas.clear();
    paginas.olvida();
    lienzo.vaAPagina(2);
    static_cast<void>(foto());
    EXPECT_TRUE(fuente.pedidas.contains(2));
}

TEST_F(LienzoPintura, PagesThatComeOutOfSightPaintNothing)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 100});
    QCoreApplication::processEvents();
    const int antes = fuente.pintadas;
    fuente.hojas += QStringList{u"otra"_s};
    fuente.hechas = 4;
    lienzo.anadePaginas();
    QCoreApplication::processEvents();
    EXPECT_EQ(fuente.pintadas, antes);
}

TEST_F(LienzoPintura, AWindowThatIsNarrowedFitsAnew)
{
    lienzo.resize(500, 700);
    EXPECT_LE(lienzo.cajaEnVentana(0).right(), lienzo.viewport()->width());
}

} // namespace
} // namespace kestrane::report
