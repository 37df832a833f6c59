#include "platform/report/preview/ventana_de_prueba.h"

#include "platform/runtime/error_ejecucion.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class VentanaVistaTest : public prueba::VentanaDePrueba
{
};

TEST_F(VentanaVistaTest, BearsItsTitle)
{
    abre(3, 3);
    EXPECT_EQ(ventana->windowTitle(), u"INFORMES:"_s);
}

TEST_F(VentanaVistaTest, ShowsTheFirstPageBeforeTheRestIsLaidOut)
{
    abreConTope(50, 1);
    static_cast<void>(ventana->grab());
    EXPECT_TRUE(fuente->pedidas.contains(0));
    EXPECT_EQ(lienzo().paginaActual(), 0);
    EXPECT_EQ(texto(u"totalPaginas"), u"de ..."_s);
    EXPECT_TRUE(control<QProgressBar>(u"avance")->isVisible());
}

TEST_F(VentanaVistaTest, LaysOutTheRestBesideItsEvents)
{
    abre(50, 1);
    ASSERT_TRUE(esperaCompleta());
    EXPECT_EQ(texto(u"totalPaginas"), u"de 50"_s);
    EXPECT_EQ(texto(u"estado"), u"Listado de secciones · 50 páginas"_s);
    EXPECT_FALSE(control<QProgressBar>(u"avance")->isVisible());
}

TEST_F(VentanaVistaTest, TheOperatorWorksWhileItIsLaidOut)
{
    abre(2000, 1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return fuente->hechas > 20; }));
    EXPECT_FALSE(fuente->completa());
    pulsa(u"siguiente");
    EXPECT_EQ(lienzo().paginaActual(), 1);
}

TEST_F(VentanaVistaTest, PagesComposedWithoutTheTotalAreComposedAnew)
{
    abreConTope(2, 1);
    static_cast<void>(ventana->grab());
    fuente->tope = 2;
    fuente->pedidas.clear();
    ASSERT_TRUE(esperaCompleta());
    static_cast<void>(ventana->grab());
    EXPECT_TRUE(fuente->pedidas.contains(0));
}

TEST_F(VentanaVistaTest, SmallPagesDrawnWithoutTheTotalAreDrawnAnew)
{
    abreConTope(2, 1);
    auto* pintor = control<Miniaturas>(u"miniaturas")->findChild<PintorMiniaturas*>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return pintor->guardado() > 0; }));
    int hechas = 0;
    QObject::connect(pintor, &PintorMiniaturas::lista, pintor, [&hechas](int pagina) { hechas += pagina == 0 ? 1 : 0; });
    fuente->tope = 2;
    ASSERT_TRUE(esperaCompleta());
    EXPECT_TRUE(QTest::qWaitFor([&] { return hechas == 1; }));
}

TEST_F(VentanaVistaTest, AnErrorOnALaterPageIsToldAndTheFirstPagesStay)
{
    abre(9, 1);
    fuente->alAvanzar = [this] {
        if (fuente->hechas == 4)
            throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero, u"División por cero."_s};
    };
    ASSERT_TRUE(QTest::qWaitFor([this] { return control<QWidget>(u"banda")->isVisible(); }));
    EXPECT_EQ(texto(u"textoAviso"), u"El informe no se puede mostrar entero. División por cero."_s);
    EXPECT_EQ(fuente->hechas, 4);
    pulsa(u"ultima");
    EXPECT_EQ(lienzo().paginaActual(), 3);
    EXPECT_EQ(texto(u"estado"), u"Listado de secciones · informe incompleto, 4 páginas"_s);
    EXPECT_FALSE(control<QProgressBar>(u"avance")->isVisible());
}

TEST_F(VentanaVistaTest, AnErrorWhilePaintingIsTold)
{
    auto nueva = std::make_unique<prueba::FuenteDePrueba>(3, 3);
    nueva->alComponer = [](int) { throw ErrorEjecucion{ErrorEjecucion::TiposNoCoinciden, u"No coinciden los tipos."_s}; };
    abre(std::move(nueva));
    static_cast<void>(ventana->grab());
    EXPECT_TRUE(QTest::qWaitFor([this] { return texto(u"textoAviso").contains(u"No coinciden los tipos."_s); }));
}

TEST_F(VentanaVistaTest, GoesToAWrittenPageAndTheNearestWhenThereIsNone)
{
    abre(5, 5);
    const auto escribe = [this](const QString& numero) {
        tecla(Qt::Key_G, Qt::ControlModifier);
        QTest::keyClicks(control<QLineEdit>(u"numeroPagina"), numero);
        QTest::keyClick(control<QLineEdit>(u"numeroPagina"), Qt::Key_Return);
    };
    escribe(u"4"_s);
    EXPECT_EQ(lienzo().paginaActual(), 3);
    escribe(u"99"_s);
    EXPECT_EQ(lienzo().paginaActual(), 4);
    escribe(u"0"_s);
    EXPECT_EQ(lienzo().paginaActual(), 0);
    EXPECT_TRUE(lienzo().hasFocus());
}

TEST_F(VentanaVistaTest, KeysForThePagesWorkFromOtherControls)
{
    abre(5, 5);
    auto* boton = control<QToolButton>(u"acerca");
    QTest::keyClick(boton, Qt::Key_End);
    EXPECT_EQ(lienzo().paginaActual(), 4);
    QTest::keyClick(boton, Qt::Key_Home);
    EXPECT_EQ(lienzo().paginaActual(), 0);
    lienzo().ponZoom({Zoom::Modo::Pagina, 100});
    QTest::keyClick(boton, Qt::Key_PageDown);
    EXPECT_EQ(lienzo().paginaActual(), 1);
}

TEST_F(VentanaVistaTest, ControlHomeAndEndGoToTheFirstAndLastPage)
{
    abre(5, 5);
    tecla(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(lienzo().paginaActual(), 4);
    tecla(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(lienzo().paginaActual(), 0);
}

TEST_F(VentanaVistaTest, PageKeysThatMeanNothingWithControlDoNothing)
{
    abre(5, 5);
    tecla(Qt::Key_PageDown, Qt::ControlModifier);
    tecla(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(lienzo().paginaActual(), 0);
}

TEST_F(VentanaVistaTest, ALaterPageOfARollWhoseLengthFailsIsTold)
{
    auto nueva = std::make_unique<prueba::FuenteDePrueba>(4, 1);
    nueva->alMedir = [](int pagina) {
        if (pagina == 2)
            throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero, u"División por cero."_s};
    };
    abre(std::move(nueva));
    ASSERT_TRUE(esperaCompleta());
    EXPECT_TRUE(QTest::qWaitFor([this] { return texto(u"textoAviso").contains(u"División por cero."_s); }));
    pulsa(u"ultima");
    EXPECT_EQ(lienzo().paginaActual(), 3);
}

TEST_F(VentanaVistaTest, FitsTheWidthAndThePage)
{
    abre(1, 1);
    pulsa(u"paginaEntera");
    EXPECT_EQ(lienzo().zoom().modo, Zoom::Modo::Pagina);
    EXPECT_TRUE(control<QToolButton>(u"paginaEntera")->isChecked());
    pulsa(u"anchoPagina");
    EXPECT_EQ(lienzo().zoom().modo, Zoom::Modo::Ancho);
    EXPECT_FALSE(control<QToolButton>(u"paginaEntera")->isChecked());
}

TEST_F(VentanaVistaTest, ASmallPageIsPressedAndGoneTo)
{
    abre(5, 5);
    auto* miniaturas = control<Miniaturas>(u"miniaturas");
    QTest::mouseClick(miniaturas->viewport(), Qt::LeftButton, {},
                      miniaturas->visualRect(miniaturas->model()->index(2, 0)).center());
    EXPECT_EQ(lienzo().paginaActual(), 2);
}

TEST_F(VentanaVistaTest, TheSmallPagesFollowTheLargeOnes)
{
    abre(40, 40);
    pulsa(u"ultima");
    EXPECT_EQ(control<Miniaturas>(u"miniaturas")->currentIndex().row(), 39);
}

TEST_F(VentanaVistaTest, TheTreeOfGroupsJumps)
{
    auto nueva = std::make_unique<prueba::FuenteDePrueba>(5, 5);
    nueva->grupos = {{u"Sección A"_s, 0, 0, 30}, {u"Sección B"_s, 0, 3, 100}};
    abre(std::move(nueva));
    auto* panel = control<QTabWidget>(u"panel");
    EXPECT_TRUE(panel->isTabVisible(1));
    panel->setCurrentIndex(1);
    auto* arbol = control<ArbolGrupos>(u"grupos");
    QTest::mouseClick(arbol->viewport(), Qt::LeftButton, {}, arbol->visualRect(arbol->model()->index(1, 0)).center());
    EXPECT_EQ(lienzo().paginaActual(), 3);
    EXPECT_LT(lienzo().cajaEnVentana(3).top(), 0);
}

TEST_F(VentanaVistaTest, SearchGoesOnInPagesThatAreLaidOutLater)
{
    abreConTope(30, 3);
    tecla(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(control<QLineEdit>(u"textoBuscado"), u"hoja"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return texto(u"cuentaAciertos") == u"1 de 3…"_s; }));
    fuente->tope = 30;
    EXPECT_TRUE(QTest::qWaitFor([this] { return texto(u"cuentaAciertos") == u"1 de 30"_s; }));
}

TEST_F(VentanaVistaTest, TheNextWindowHasTheSizeAndZoomOfTheLast)
{
    abre(1, 1);
    ventana->resize(780, 640);
    pulsa(u"paginaEntera");
    ventana->close();
    abre(1, 1);
    EXPECT_EQ(ventana->size(), QSize(780, 640));
    EXPECT_EQ(lienzo().zoom().modo, Zoom::Modo::Pagina);
}

TEST_F(VentanaVistaTest, IsNoLargerThanTheScreen)
{
    recuerdo.tamano = {20000, 15000};
    abre(1, 1);
    const QSize pantalla = ventana->screen()->availableGeometry().size();
    EXPECT_LE(ventana->width(), pantalla.width());
    EXPECT_LE(ventana->height(), pantalla.height());
}

TEST_F(VentanaVistaTest, AnEmptyReportOpensAndNothingInItFails)
{
    abre(QList<QStringList>{});
    for (const char16_t* boton : {u"siguiente", u"ultima", u"acerca", u"aleja", u"paginaEntera"})
        pulsa(boton);
    tecla(Qt::Key_End);
    tecla(Qt::Key_PageDown);
    tecla(Qt::Key_F5);
    EXPECT_EQ(texto(u"totalPaginas"), u"de 0"_s);
    EXPECT_EQ(texto(u"estado"), u"Listado de secciones · 0 páginas"_s);
}

TEST_F(VentanaVistaTest, SixteenThousandPagesComposeOnlyWhatIsSeen)
{
    abre(16000, 16000);
    static_cast<void>(ventana->grab());
    pulsa(u"ultima");
    static_cast<void>(ventana->grab());
    ASSERT_TRUE(QTest::qWaitFor([this] { return fuente->pedidas.contains(15998); }));
    EXPECT_LT(fuente->pedidas.size(), 40U);
}

TEST_F(VentanaVistaTest, ItsClosingDoesNotEndTheProgram)
{
    abre(1, 1);
    EXPECT_FALSE(ventana->testAttribute(Qt::WA_QuitOnClose));
}

} // namespace
} // namespace kestrane::report
