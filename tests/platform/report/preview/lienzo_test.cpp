#include "platform/report/preview/lienzo_de_prueba.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class LienzoTest : public prueba::LienzoDePrueba
{
};

TEST_F(LienzoTest, BeginsFittedToTheWidth)
{
    EXPECT_EQ(lienzo.zoom(), Zoom{});
    EXPECT_NEAR(lienzo.cajaEnVentana(0).width(), lienzo.viewport()->width() - 32, 1);
}

TEST_F(LienzoTest, AWholePageFitsIntoTheWindow)
{
    lienzo.ponZoom({Zoom::Modo::Pagina, 0});
    EXPECT_NEAR(lienzo.cajaEnVentana(0).height(), lienzo.viewport()->height() - 32, 1);
}

TEST_F(LienzoTest, AHundredPercentIsTheSizeOnPaper)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 100});
    EXPECT_NEAR(lienzo.cajaEnVentana(0).width(), 210 / 25.4 * 96, 1);
    EXPECT_DOUBLE_EQ(lienzo.porcentaje(), 100);
}

TEST_F(LienzoTest, AFittedPageFollowsTheWindowsSize)
{
    lienzo.resize(600, 700);
    EXPECT_NEAR(lienzo.cajaEnVentana(0).width(), lienzo.viewport()->width() - 32, 1);
}

TEST_F(LienzoTest, APercentageStaysWhenTheWindowGrows)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 75});
    lienzo.resize(1200, 900);
    EXPECT_DOUBLE_EQ(lienzo.porcentaje(), 75);
}

TEST_F(LienzoTest, EnlargesAndReducesInSteps)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 100});
    lienzo.acerca();
    EXPECT_DOUBLE_EQ(lienzo.porcentaje(), 110);
    lienzo.aleja();
    lienzo.aleja();
    EXPECT_DOUBLE_EQ(lienzo.porcentaje(), 90);
}

TEST_F(LienzoTest, EnlargingKeepsThePageThatIsLookedAt)
{
    lienzo.vaAPagina(2);
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 300});
    EXPECT_EQ(lienzo.paginaActual(), 2);
}

TEST_F(LienzoTest, GoesToAPageAndToAHeightOfIt)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 100});
    lienzo.vaAPagina(1);
    EXPECT_NEAR(lienzo.cajaEnVentana(1).top(), 8, 1);
    lienzo.vaA(1, 100);
    EXPECT_NEAR(lienzo.cajaEnVentana(1).top(), 8 - 100 / 25.4 * 96, 1);
}

TEST_F(LienzoTest, APageThatIsNotThereLeavesItWhereItIs)
{
    lienzo.vaAPagina(1);
    const int antes = lienzo.verticalScrollBar()->value();
    lienzo.vaAPagina(-1);
    lienzo.vaAPagina(3);
    EXPECT_EQ(lienzo.verticalScrollBar()->value(), antes);
}

TEST_F(LienzoTest, TellsThePageThatIsLookedAt)
{
    const QSignalSpy cambios{&lienzo, &Lienzo::paginaCambiada};
    lienzo.vaAPagina(2);
    ASSERT_EQ(cambios.size(), 1);
    EXPECT_EQ(cambios[0][0].toInt(), 2);
}

TEST_F(LienzoTest, PagesThatComeLeaveInSightWhatIsSeen)
{
    lienzo.vaA(1, 50);
    const QRectF antes = lienzo.cajaEnVentana(1);
    fuente.hojas += QStringList{u"otra"_s};
    fuente.hechas = 4;
    lienzo.anadePaginas();
    EXPECT_EQ(lienzo.cajaEnVentana(1), antes);
    lienzo.vaAPagina(3);
    EXPECT_EQ(lienzo.paginaActual(), 3);
}

TEST_F(LienzoTest, AReportLaidOutAnewWithFewerPagesShowsTheLast)
{
    lienzo.vaAPagina(2);
    fuente.hojas = {{u"sola"_s}};
    fuente.hechas = 1;
    lienzo.recomienza();
    EXPECT_EQ(lienzo.paginaActual(), 0);
}

TEST_F(LienzoTest, AHitOutOfSightIsBroughtIntoSight)
{
    lienzo.ponZoom({Zoom::Modo::Porcentaje, 200});
    lienzo.muestraAcierto({2, 1, {0, 5}});
    const QRectF caja = lienzo.cajaDeTexto(2, 1, {0, 5});
    EXPECT_TRUE(QRectF{lienzo.viewport()->rect()}.contains(caja));
}

TEST_F(LienzoTest, AHitInSightDoesNotMoveThePages)
{
    const int antes = lienzo.verticalScrollBar()->value();
    lienzo.muestraAcierto({0, 0, {0, 4}});
    EXPECT_EQ(lienzo.verticalScrollBar()->value(), antes);
}

TEST_F(LienzoTest, CopiesTheTextOfThePage)
{
    lienzo.vaAPagina(1);
    lienzo.seleccionaPagina();
    EXPECT_TRUE(lienzo.haySeleccion());
    lienzo.copia();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Corte\t8,00\nPágina 2 de 3"_s);
}

TEST_F(LienzoTest, WithoutASelectionTheClipboardIsLeftAlone)
{
    QGuiApplication::clipboard()->setText(u"de antes"_s);
    lienzo.copia();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"de antes"_s);
}

class LienzoVacio : public prueba::LienzoDePrueba
{
protected:
    LienzoVacio() : LienzoDePrueba{QList<QStringList>{}} {}
};

TEST_F(LienzoVacio, AReportWithoutPagesHasNothingToGoTo)
{
    EXPECT_EQ(lienzo.paginaActual(), -1);
    lienzo.vaAPagina(0);
    lienzo.acerca();
    lienzo.seleccionaPagina();
    lienzo.avanzaPantalla();
    lienzo.retrocedePantalla();
    EXPECT_FALSE(lienzo.haySeleccion());
    EXPECT_EQ(lienzo.paginaActual(), -1);
}

} // namespace
} // namespace kestrane::report
