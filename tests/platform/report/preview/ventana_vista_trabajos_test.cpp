#include "platform/report/preview/ventana_de_prueba.h"

#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <QComboBox>
#include <QSpinBox>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class VentanaVistaTrabajos : public prueba::VentanaDePrueba
{
protected:
    /// Presses "Imprimir" in the dialog and waits for what the window tells of it.
    void aceptaImpresion()
    {
        pulsa(u"imprime");
        EXPECT_TRUE(QTest::qWaitFor([this] { return !aviso().isEmpty(); }));
    }
    [[nodiscard]] QDialog* dialogoImpresion() const { return control<QDialog>(u"dialogoImpresion"); }
};

TEST_F(VentanaVistaTrabajos, APrintThatIsAskedForDuringAnExportIsNotDoneInsideIt)
{
    abre(2, 2);
    pulsa(u"imprimir");
    ASSERT_NE(dialogoImpresion(), nullptr);
    fuente->alExportar = [this](FormatoExportacion, const QString&, const AvanceExportacion& avance) {
        dialogoImpresion()->accept();
        QCoreApplication::processEvents();
        return avance(1);
    };
    elegido = u"x.csv"_s;
    exporta(FormatoExportacion::Csv);
    EXPECT_TRUE(impresion.peticiones.empty());
    EXPECT_EQ(aviso(), u"El informe se ha guardado en x.csv."_s);
}

TEST_F(VentanaVistaTrabajos, ClosingTheWindowDuringAnExportBreaksTheExportOff)
{
    abre(1, 1);
    bool sigue = true;
    fuente->alExportar = [&](FormatoExportacion, const QString&, const AvanceExportacion& avance) {
        ventana->close();
        return sigue = avance(0.5);
    };
    elegido = u"x.pdf"_s;
    exporta(FormatoExportacion::Pdf);
    EXPECT_FALSE(sigue);
    EXPECT_TRUE(ventana->isVisible());
}

TEST_F(VentanaVistaTrabajos, NothingIsLaidOutWhileAnExportHasThePages)
{
    abreConTope(50, 1);
    int avances = 0;
    fuente->alExportar = [&](FormatoExportacion, const QString&, const AvanceExportacion& avance) {
        fuente->alAvanzar = [&avances] { ++avances; };
        for (int i = 0; i < 20; ++i) {
            avance(0.5);
            QCoreApplication::processEvents();
        }
        fuente->alAvanzar = {};
        return true;
    };
    elegido = u"x.pdf"_s;
    exporta(FormatoExportacion::Pdf);
    EXPECT_EQ(avances, 0);
}

TEST_F(VentanaVistaTrabajos, PrintsWhatTheDialogAsksForOnceAllPagesAreKnown)
{
    impresora = u"OKI"_s;
    abreConTope(9, 1);
    tecla(Qt::Key_P, Qt::ControlModifier);
    ASSERT_NE(dialogoImpresion(), nullptr);
    control<QSpinBox>(u"hasta")->setValue(4);
    control<QSpinBox>(u"copias")->setValue(2);
    fuente->tope = 9;
    aceptaImpresion();
    ASSERT_EQ(impresion.peticiones.size(), 1U);
    EXPECT_EQ(impresion.peticiones[0], (PeticionImpresion{u"OKI"_s, 1, 4, 2}));
    EXPECT_TRUE(impresion.completa);
    EXPECT_EQ(aviso(), u"El informe se ha enviado a la impresora OKI."_s);
}

TEST_F(VentanaVistaTrabajos, TheButtonOpensThePrintDialogAndCancelPrintsNothing)
{
    abre(2, 2);
    pulsa(u"imprimir");
    ASSERT_NE(dialogoImpresion(), nullptr);
    pulsa(u"cancela");
    EXPECT_TRUE(impresion.peticiones.empty());
}

TEST_F(VentanaVistaTrabajos, AReportWithoutPagesIsNotPrinted)
{
    abre(QList<QStringList>{});
    EXPECT_FALSE(control<QToolButton>(u"imprimir")->isEnabled());
    tecla(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(dialogoImpresion(), nullptr);
}

TEST_F(VentanaVistaTrabajos, APrintThatIsBrokenOffTellsHowManyPagesWereOut)
{
    abre(9, 9);
    impresion.alImprimir = [this](const AvanceExportacion& avance) {
        int enviadas = 0;
        while (enviadas < 9 && avance(enviadas / 9.)) {
            if (++enviadas == 4)
                pulsa(u"cancelaAvance");
        }
        return enviadas;
    };
    pulsa(u"imprimir");
    aceptaImpresion();
    EXPECT_EQ(aviso(), u"Impresión cancelada: la impresora HP recibe solo 4 páginas."_s);
}

TEST_F(VentanaVistaTrabajos, APrintThatIsBrokenOffBeforeItsFirstPageLeavesNoPaper)
{
    abre(9, 9);
    impresion.alImprimir = [this](const AvanceExportacion& avance) {
        pulsa(u"cancelaAvance");
        return avance(0) ? 9 : 0;
    };
    pulsa(u"imprimir");
    aceptaImpresion();
    EXPECT_EQ(aviso(), u"Imprimiendo: cancelado."_s);
}

TEST_F(VentanaVistaTrabajos, TheBarOfAPrintNeverGoesBack)
{
    abreConTope(9, 1);
    int antes = 0;
    impresion.alImprimir = [&](const AvanceExportacion& avance) {
        antes = control<QProgressBar>(u"barraAvance")->value();
        EXPECT_TRUE(avance(0));
        EXPECT_GE(control<QProgressBar>(u"barraAvance")->value(), antes);
        EXPECT_TRUE(avance(1));
        EXPECT_EQ(control<QProgressBar>(u"barraAvance")->value(), 100);
        return true;
    };
    pulsa(u"imprimir");
    fuente->tope = 9;
    aceptaImpresion();
    EXPECT_GT(antes, 0);
}

TEST_F(VentanaVistaTrabajos, APrinterThatVanishedIsTold)
{
    abre(1, 1);
    impresion.alImprimir = [](const AvanceExportacion&) -> bool { throw ErrorDeSalida{u"La impresora HP no responde."_s}; };
    pulsa(u"imprimir");
    aceptaImpresion();
    EXPECT_EQ(aviso(), u"Imprimiendo, algo ha fallado: La impresora HP no responde."_s);
}

TEST_F(VentanaVistaTrabajos, TheNextReportOffersThePrinterThatWasChosen)
{
    abre(1, 1);
    pulsa(u"imprimir");
    control<QComboBox>(u"impresora")->setCurrentText(u"OKI"_s);
    aceptaImpresion();
    abre(1, 1);
    pulsa(u"imprimir");
    EXPECT_EQ(control<QComboBox>(u"impresora")->currentText(), u"OKI"_s);
}

TEST_F(VentanaVistaTrabajos, F5LaysOutAnewAndStaysOnThePage)
{
    abre(9, 9);
    pulsa(u"ultima");
    fuente->hojas[8] = {u"cambiada"_s};
    tecla(Qt::Key_F5);
    EXPECT_EQ(fuente->actualizaciones, 1);
    ASSERT_TRUE(esperaCompleta());
    EXPECT_EQ(lienzo().paginaActual(), 8);
    lienzo().seleccionaPagina();
    EXPECT_TRUE(lienzo().haySeleccion());
}

TEST_F(VentanaVistaTrabajos, ALayoutThatNoLongerFitsIsToldAndThePagesStay)
{
    abre(3, 3);
    fuente->alActualizar = [] { throw ErrorEjecucion{ErrorEjecucion::LayoutIncorrecto, u"secciones.rpt, línea 3."_s}; };
    pulsa(u"actualizar");
    EXPECT_EQ(aviso(), u"No se ha podido actualizar el informe. secciones.rpt, línea 3."_s);
    EXPECT_EQ(texto(u"totalPaginas"), u"de 3"_s);
}

TEST_F(VentanaVistaTrabajos, WhatCannotBeLaidOutIsNotTriedAgainAfterAnExport)
{
    auto nueva = std::make_unique<prueba::FuenteDePrueba>(9, 4);
    int fallos = 0;
    nueva->alAvanzar = [&fallos] {
        ++fallos;
        throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero, u"División por cero."_s};
    };
    abre(std::move(nueva));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !aviso().isEmpty(); }));
    fuente->alExportar = [](FormatoExportacion, const QString&, const AvanceExportacion& avance) { return avance(1); };
    elegido = u"x.csv"_s;
    exporta(FormatoExportacion::Csv);
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(fallos, 1);
    EXPECT_EQ(aviso(), u"El informe se ha guardado en x.csv."_s);
    fuente->alAvanzar = {};
    pulsa(u"actualizar");
    EXPECT_TRUE(esperaCompleta()) << "laid out anew it may go well";
    EXPECT_EQ(texto(u"estado"), u"Listado de secciones · 9 páginas"_s);
}

TEST_F(VentanaVistaTrabajos, SearchGoesOnInTheReportLaidOutAnew)
{
    abre({{u"Corte"_s}, {u"Tinte"_s}});
    tecla(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(control<QLineEdit>(u"textoBuscado"), u"peine"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return texto(u"cuentaAciertos") == u"Ningún acierto"_s; }));
    fuente->hojas[1] = {u"Peine"_s};
    tecla(Qt::Key_F5);
    EXPECT_TRUE(QTest::qWaitFor([this] { return texto(u"cuentaAciertos") == u"1 de 1"_s; }));
}

} // namespace
} // namespace kestrane::report
