#include "platform/report/preview/barra_vista.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class BarraVistaTest : public testing::Test
{
protected:
    BarraVistaTest()
    {
        barra.resize(1300, 60);
        barra.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&barra));
    }
    [[nodiscard]] QToolButton* boton(const QString& nombre) const { return barra.findChild<QToolButton*>(nombre); }

    void escribePagina(const QString& texto)
    {
        barra.editaPagina();
        QTest::keyClicks(pagina, texto);
        QTest::keyClick(pagina, Qt::Key_Return);
    }

    BarraVista barra;
    QLineEdit* pagina = barra.findChild<QLineEdit*>(u"numeroPagina"_s);
    QLabel* total = barra.findChild<QLabel*>(u"totalPaginas"_s);
};

TEST_F(BarraVistaTest, TheNumberOfPagesReadsThreePointsUntilItIsKnown)
{
    barra.ponPagina(0, 7, false);
    EXPECT_EQ(total->text(), u"de ..."_s);
    barra.ponPagina(0, 12, true);
    EXPECT_EQ(total->text(), u"de 12"_s);
}

TEST_F(BarraVistaTest, ShowsThePageThatIsLookedAt)
{
    barra.ponPagina(4, 12, true);
    EXPECT_EQ(pagina->text(), u"5"_s);
    barra.ponPagina(-1, 0, true);
    EXPECT_EQ(pagina->text(), QString{});
}

TEST_F(BarraVistaTest, ButtonsThatLeadNowhereCannotBePressed)
{
    barra.ponPagina(0, 3, true);
    EXPECT_FALSE(boton(u"anterior"_s)->isEnabled());
    EXPECT_TRUE(boton(u"siguiente"_s)->isEnabled());
    barra.ponPagina(2, 3, true);
    EXPECT_TRUE(boton(u"primera"_s)->isEnabled());
    EXPECT_FALSE(boton(u"ultima"_s)->isEnabled());
}

TEST_F(BarraVistaTest, PrintAndExportAreInSightHoweverNarrowTheWindow)
{
    const auto letrero = [this](const QString& nombre) { return boton(nombre)->toolButtonStyle() == Qt::ToolButtonTextBesideIcon; };
    EXPECT_TRUE(letrero(u"imprimir"_s));
    barra.resize(640, 60);
    EXPECT_FALSE(letrero(u"imprimir"_s)) << "without their captions";
    EXPECT_FALSE(letrero(u"exportar"_s));
    QCoreApplication::processEvents();
    for (const auto* nombre : {u"imprimir", u"exportar", u"siguiente"})
        EXPECT_TRUE(boton(QString::fromUtf16(nombre))->isVisible());
    barra.resize(1300, 60);
    EXPECT_TRUE(letrero(u"imprimir"_s));
    EXPECT_TRUE(letrero(u"exportar"_s));
}

TEST_F(BarraVistaTest, AWrittenNumberAsksForThatPage)
{
    const QSignalSpy pedidas{&barra, &BarraVista::paginaPedida};
    barra.ponPagina(0, 12, true);
    escribePagina(u"7"_s);
    ASSERT_EQ(pedidas.size(), 1);
    EXPECT_EQ(pedidas[0][0].toInt(), 6);
}

TEST_F(BarraVistaTest, WhatIsNoNumberIsForgotten)
{
    const QSignalSpy pedidas{&barra, &BarraVista::paginaPedida};
    barra.ponPagina(2, 12, true);
    escribePagina(u"siete"_s);
    EXPECT_EQ(pedidas.size(), 0);
    EXPECT_EQ(pagina->text(), u"3"_s);
}

TEST_F(BarraVistaTest, ShowsTheZoom)
{
    barra.ponZoom({Zoom::Modo::Ancho, 100}, 86.6);
    EXPECT_EQ(boton(u"zoom"_s)->text(), u"87 %"_s);
    EXPECT_TRUE(boton(u"anchoPagina"_s)->isChecked());
    EXPECT_FALSE(boton(u"paginaEntera"_s)->isChecked());
}

TEST_F(BarraVistaTest, ItsZoomMenuAsksForFitsAndPercentages)
{
    std::vector<Zoom> pedidos;
    QObject::connect(&barra, &BarraVista::zoomPedido, &barra, [&pedidos](Zoom zoom) { pedidos.push_back(zoom); });
    const auto acciones = boton(u"zoom"_s)->menu()->actions();
    acciones[0]->trigger();
    acciones[1]->trigger();
    acciones[3]->trigger();
    ASSERT_EQ(pedidos.size(), 3U);
    EXPECT_EQ(pedidos[0].modo, Zoom::Modo::Ancho);
    EXPECT_EQ(pedidos[1].modo, Zoom::Modo::Pagina);
    EXPECT_EQ(pedidos[2], (Zoom{Zoom::Modo::Porcentaje, 50}));
}

TEST_F(BarraVistaTest, ItsExportMenuNamesEachFormat)
{
    std::vector<FormatoExportacion> pedidos;
    QObject::connect(&barra, &BarraVista::exportar, &barra, [&pedidos](FormatoExportacion formato) { pedidos.push_back(formato); });
    for (QAction* accion : boton(u"exportar"_s)->menu()->actions())
        accion->trigger();
    EXPECT_EQ(pedidos, (std::vector{FormatoExportacion::Pdf, FormatoExportacion::Xlsx, FormatoExportacion::Csv,
                                    FormatoExportacion::Html, FormatoExportacion::Png}));
}

TEST_F(BarraVistaTest, EveryControlIsLargeEnoughForAFingerAndHasAName)
{
    for (const QToolButton* uno : barra.findChildren<QToolButton*>()) {
        if (uno->objectName().startsWith(u"qt_"))
            continue;
        EXPECT_GE(uno->width(), 44) << uno->objectName().toStdString();
        EXPECT_GE(uno->height(), 44) << uno->objectName().toStdString();
        EXPECT_FALSE(uno->toolTip().isEmpty()) << uno->objectName().toStdString();
    }
}

} // namespace
} // namespace kestrane::report
