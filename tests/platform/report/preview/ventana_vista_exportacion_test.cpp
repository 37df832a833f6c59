#include "platform/report/preview/ventana_de_prueba.h"

#include "platform/runtime/error_de_salida.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTimer>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class VentanaVistaExportacion : public prueba::VentanaDePrueba
{
protected:
    static void crea(const QString& ruta) { ASSERT_TRUE(QFile{ruta}.open(QIODevice::WriteOnly)); }
};

TEST_F(VentanaVistaExportacion, ExportsToTheChosenFile)
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

TEST_F(VentanaVistaExportacion, ProposesTheReportsTitleWithTheFormatsEnding)
{
    abre(1, 1);
    fuente->nombre = u"Ventas 01/02: \"todas\""_s;
    exporta(FormatoExportacion::Html);
    EXPECT_TRUE(propuesto.endsWith(u"/Ventas 01_02_ _todas_.html"_s)) << propuesto.toStdString();
    fuente->nombre.clear();
    exporta(FormatoExportacion::Csv);
    EXPECT_TRUE(propuesto.endsWith(u"/Informe.csv"_s)) << propuesto.toStdString();
}

TEST_F(VentanaVistaExportacion, AFileWithoutItsEndingGetsIt)
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

TEST_F(VentanaVistaExportacion, AFileThatGetsItsEndingIsNotReplacedUnasked)
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

TEST_F(VentanaVistaExportacion, PicturesOfSeveralPagesAreNamedAndNotReplacedUnasked)
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

TEST_F(VentanaVistaExportacion, TheFileDialogKnowsTheEndingWhenItAsksAboutReplacing)
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

TEST_F(VentanaVistaExportacion, TheNextExportBeginsInTheLastFolder)
{
    abre(1, 1);
    const QTemporaryDir carpeta;
    elegido = carpeta.filePath(u"uno.csv"_s);
    exporta(FormatoExportacion::Csv);
    exporta(FormatoExportacion::Csv);
    EXPECT_TRUE(propuesto.startsWith(carpeta.path())) << propuesto.toStdString();
}

TEST_F(VentanaVistaExportacion, WhoWouldRatherNotExportsNothing)
{
    abre(1, 1);
    bool exportado = false;
    fuente->alExportar = [&exportado](FormatoExportacion, const QString&, const AvanceExportacion&) { return exportado = true; };
    exporta(FormatoExportacion::Pdf);
    EXPECT_FALSE(exportado);
    EXPECT_EQ(aviso(), QString{});
}

TEST_F(VentanaVistaExportacion, ControlSOpensTheFormatsOfWhichEnterTakesTheMarkedOne)
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

TEST_F(VentanaVistaExportacion, ControlSOnANarrowWindowOpensTheFormatsToo)
{
    abre(1, 1);
    ventana->resize(ventana->minimumSizeHint());
    tecla(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(control<QToolButton>(u"exportar")->menu()->isVisible());
}

TEST_F(VentanaVistaExportacion, AnExportShowsABarAndIsBrokenOff)
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

TEST_F(VentanaVistaExportacion, AFolderWithoutRightsIsToldAndTheWindowStays)
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

} // namespace
} // namespace kestrane::report
