#include "platform/report/preview/ventana_de_prueba.h"

#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class VentanaVistaTrabajos : public prueba::VentanaDePrueba
{
protected:
    void exporta(FormatoExportacion formato) { control<QToolButton>(u"exportar")->menu()->actions().at(int(formato))->trigger(); }
    static void crea(const QString& ruta) { ASSERT_TRUE(QFile{ruta}.open(QIODevice::WriteOnly)); }
    /// Presses "Imprimir" in the dialog and waits for what the window tells of it.
    void aceptaImpresion()
    {
        pulsa(u"imprime");
        EXPECT_TRUE(QTest::qWaitFor([this] { return !aviso().isEmpty(); }));
    }
    [[nodiscard]] QDialog* dialogoImpresion() const { return control<QDialog>(u"dialogoImpresion"); }
};

TEST_F(VentanaVistaTrabajos, ExportsToTheChosenFile)
{
    abre(2, 2);
    QStringList pedidos;
    fuente->alExportar = [&pedidos](FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance) {
        pedidos += u"%1 %2"_s.arg(int(formato)).arg(fichero);
        return avance(1);
    };
    elegido = u"carpeta/secciones.xlsx"_s;
    exporta(FormatoExportacion::Xlsx);
    EXPECT_EQ(pedidos, QStringList{u"1 carpeta/secciones.xlsx"_s});
    EXPECT_EQ(aviso(), u"El informe se ha guardado en carpeta/secciones.xlsx."_s);
}

TEST_F(VentanaVistaTrabajos, ProposesTheReportsTitleWithTheFormatsEnding)
{
    abre(1, 1);
    fuente->nombre = u"Ventas 01/02: \"todas\""_s;
    exporta(FormatoExportacion::Html);
    EXPECT_TRUE(propuesto.endsWith(u"/Ventas 01_02_ _todas_.html"_s)) << propuesto.toStdString();
    fuente->nombre.clear();
    exporta(FormatoExportacion::Csv);
    EXPECT_TRUE(propuesto.endsWith(u"/Informe.csv"_s)) << propuesto.toStdString();
}

TEST_F(VentanaVistaTrabajos, AFileWithoutItsEndingGetsIt)
{
    abre(1, 1);
    QString escrito;
    fuente->alExportar = [&escrito](FormatoExportacion, const QString& fichero, const AvanceExportacion&) {
        escrito = fichero;
        return true;
    };
    elegido = u"carpeta/secciones"_s;
    exporta(FormatoExportacion::Png);
    EXPECT_EQ(escrito, u"carpeta/secciones.png"_s);
}

TEST_F(VentanaVistaTrabajos, AFileThatGetsItsEndingIsNotReplacedUnasked)
{
    abre(1, 1);
    const QTemporaryDir carpeta;
    crea(carpeta.filePath(u"uno.txt.csv"_s));
    bool exportado = false;
    fuente->alExportar = [&exportado](FormatoExportacion, const QString&, const AvanceExportacion&) { return exportado = true; };
    elegido = carpeta.filePath(u"uno.txt"_s);
    reemplaza = false;
    exporta(FormatoExportacion::Csv);
    EXPECT_EQ(preguntados, QStringList{u"uno.txt.csv"_s});
    EXPECT_FALSE(exportado);
    reemplaza = true;
    exporta(FormatoExportacion::Csv);
    EXPECT_TRUE(exportado);
}

TEST_F(VentanaVistaTrabajos, PicturesOfSeveralPagesAreNamedAndNotReplacedUnasked)
{
    abre(3, 3);
    const QTemporaryDir carpeta;
    int exportados = 0;
    fuente->alExportar = [&exportados](FormatoExportacion, const QString&, const AvanceExportacion&) { return ++exportados > 0; };
    elegido = carpeta.filePath(u"hoja.png"_s);
    for (const QString& ajeno : {u"hoja.png"_s, u"hoja_004.png"_s, u"hoja_1.png"_s, u"otra_001.png"_s})
        crea(carpeta.filePath(ajeno));
    exporta(FormatoExportacion::Png);
    EXPECT_EQ(preguntados, QStringList{}) << "none of these is written";
    EXPECT_EQ(aviso(), u"El informe se ha guardado en 3 imágenes, de %1 a hoja_003.png."_s.arg(
                           QDir::toNativeSeparators(carpeta.filePath(u"hoja_001.png"_s))));
    crea(carpeta.filePath(u"hoja_001.png"_s));
    crea(carpeta.filePath(u"hoja_003.png"_s));
    reemplaza = false;
    exporta(FormatoExportacion::Png);
    EXPECT_EQ(preguntados, QStringList{u"hoja_001.png y 1 más"_s});
    EXPECT_EQ(exportados, 1);
}

TEST_F(VentanaVistaTrabajos, TheFileDialogKnowsTheEndingWhenItAsksAboutReplacing)
{
    abre(1, 1);
    QString terminacion;
    QTimer::singleShot(0, ventana.get(), [&] {
        auto* dialogo = ventana->findChild<QFileDialog*>();
        ASSERT_NE(dialogo, nullptr);
        terminacion = dialogo->defaultSuffix();
        EXPECT_FALSE(dialogo->testOption(QFileDialog::DontConfirmOverwrite));
        dialogo->reject();
    });
    EXPECT_EQ(eligeFicheroConDialogo(ventana.get(), FormatoExportacion::Xlsx, QDir::temp().filePath(u"x.xlsx"_s)), QString{});
    EXPECT_EQ(terminacion, u"xlsx"_s);
}

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

TEST_F(VentanaVistaTrabajos, TheNextExportBeginsInTheLastFolder)
{
    abre(1, 1);
    const QTemporaryDir carpeta;
    elegido = carpeta.filePath(u"uno.csv"_s);
    exporta(FormatoExportacion::Csv);
    exporta(FormatoExportacion::Csv);
    EXPECT_TRUE(propuesto.startsWith(carpeta.path())) << propuesto.toStdString();
}

TEST_F(VentanaVistaTrabajos, WhoWouldRatherNotExportsNothing)
{
    abre(1, 1);
    bool exportado = false;
    fuente->alExportar = [&exportado](FormatoExportacion, const QString&, const AvanceExportacion&) { return exportado = true; };
    exporta(FormatoExportacion::Pdf);
    EXPECT_FALSE(exportado);
    EXPECT_EQ(aviso(), QString{});
}

TEST_F(VentanaVistaTrabajos, ControlSOpensTheFormatsOfWhichEnterTakesTheMarkedOne)
{
    abre(1, 1);
    tecla(Qt::Key_S, Qt::ControlModifier);
    auto* menu = control<QToolButton>(u"exportar")->menu();
    ASSERT_TRUE(menu->isVisible());
    EXPECT_EQ(propuesto, QString{}) << "nothing is exported before a format is chosen";
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_TRUE(propuesto.endsWith(u".xlsx"_s)) << propuesto.toStdString();
    tecla(Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_TRUE(propuesto.endsWith(u".pdf"_s)) << propuesto.toStdString();
}

TEST_F(VentanaVistaTrabajos, ControlSOnANarrowWindowOpensTheFormatsToo)
{
    abre(1, 1);
    ventana->resize(ventana->minimumSizeHint());
    tecla(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(control<QToolButton>(u"exportar")->menu()->isVisible());
}

TEST_F(VentanaVistaTrabajos, AnExportShowsABarAndIsBrokenOff)
{
    abre(1, 1);
    fuente->alExportar = [this](FormatoExportacion, const QString&, const AvanceExportacion& avance) {
        EXPECT_TRUE(avance(0.4));
        EXPECT_EQ(control<QProgressBar>(u"barraAvance")->value(), 40);
        pulsa(u"cancelaAvance");
        return avance(0.5);
    };
    elegido = u"x.pdf"_s;
    exporta(FormatoExportacion::Pdf);
    EXPECT_EQ(aviso(), u"Exportando: cancelado."_s);
    EXPECT_EQ(control<QDialog>(u"dialogoAvance"), nullptr);
}

TEST_F(VentanaVistaTrabajos, AFolderWithoutRightsIsToldAndTheWindowStays)
{
    abre(3, 1);
    fuente->alExportar = [](FormatoExportacion, const QString&, const AvanceExportacion&) -> bool {
        throw ErrorDeSalida{u"permiso denegado"_s};
    };
    elegido = u"x.pdf"_s;
    exporta(FormatoExportacion::Pdf);
    EXPECT_EQ(aviso(), u"Exportando, algo ha fallado: permiso denegado"_s);
    EXPECT_TRUE(ventana->isVisible());
    EXPECT_TRUE(esperaCompleta()) << "it goes on laying out";
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
