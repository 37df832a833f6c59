#include "platform/report/export/exportacion.h"

#include "apoyo/limite_de_fichero.h"
#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/error_de_salida.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include <sys/stat.h>
#include <unistd.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::LimiteDeFichero;
using prueba::TiendaDePrueba;

constexpr auto LayoutPrueba = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Marcas de la tienda">
  <pagina papel="A4" orientacion="vertical" margenes="12 12 12 12"/>
  <estilo nombre="celda" cuerpo="9"/>
  <consulta>select texto1, numerico1 from informes</consulta>
  <orden por="numerico1"/>
  <tabla cabecera="celda" celda="celda" celda-par="celda" total="celda" alto="5" totales="si">
    <columna titulo="Marca" valor="texto1" ancho="80"/>
    <columna titulo="Importe" valor="numerico1" ancho="30" formato="moneda" total="suma"/>
  </tabla>
</informe>
)";

constexpr FormatoExportacion Todos[] = {FormatoExportacion::Pdf, FormatoExportacion::Xlsx, FormatoExportacion::Csv,
                                        FormatoExportacion::Html, FormatoExportacion::Png};

/// A report of rows 1, 2 .. in an empty folder, from a layout file and a database.
class Exporta : public testing::Test
{
protected:
    Exporta()
    {
        QFile fichero{layout()};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(LayoutPrueba);
    }

    void filas(int cuantas)
    {
        for (int fila = 1; fila <= cuantas; ++fila)
            m_tienda.ejecutaListados(u"insert into informes (texto1, numerico1) values ('Marca %1', %1.5)"_s.arg(fila));
    }
    bool exportaA(const QString& nombre, FormatoExportacion formato, const AvanceExportacion& avance = {})
    {
        Documento documento{layout(), m_tienda.entorno()};
        return exporta(documento, formato, ruta(nombre), avance);
    }
    QString motivo(const QString& nombre, FormatoExportacion formato)
    {
        try {
            exportaA(nombre, formato);
        } catch (const ErrorDeSalida& error) {
            return error.motivo();
        }
        return u"(se ha escrito)"_s;
    }

    [[nodiscard]] QString layout() const { return QDir{m_tienda.carpeta()}.filePath(u"prueba.rpt"_s); }
    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }
    [[nodiscard]] QStringList nombres() const
    {
        return QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    [[nodiscard]] QByteArray lee(const QString& nombre) const
    {
        QFile fichero{ruta(nombre)};
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << nombre.toStdString();
        return fichero.readAll();
    }
    static QString salidaDe(const QString& programa, const QStringList& argumentos)
    {
        QProcess proceso;
        proceso.start(programa, argumentos);
        EXPECT_TRUE(proceso.waitForFinished());
        EXPECT_EQ(proceso.exitCode(), 0) << proceso.readAllStandardError().toStdString();
        return QString::fromUtf8(proceso.readAllStandardOutput());
    }

    TiendaDePrueba m_tienda;
    QTemporaryDir m_carpeta;
};

TEST_F(Exporta, AFolderThatIsNotThereIsAnErrorInEachFormat)
{
    filas(1);
    for (const FormatoExportacion formato : Todos)
        EXPECT_EQ(motivo(u"nada/a"_s, formato), u"\"%1\": no existe"_s.arg(ruta(u"nada/a"_s)));
}

TEST_F(Exporta, ADiskThatIsFullIsAnErrorInEachFormatAndLeavesNothing)
{
    filas(200);
    for (const FormatoExportacion formato : Todos) {
        Documento documento{layout(), m_tienda.entorno()};
        const LimiteDeFichero limite{1000};
        EXPECT_THROW(exporta(documento, formato, ruta(u"a"_s)), ErrorDeSalida) << static_cast<int>(formato);
        EXPECT_EQ(nombres(), QStringList{}) << static_cast<int>(formato);
    }
}

TEST_F(Exporta, APipeStaysAPipeInEachFormat)
{
    filas(1);
    const QByteArray tubo = QFile::encodeName(ruta(u"a"_s));
    ASSERT_EQ(mkfifo(tubo.constData(), 0600), 0);
    for (const FormatoExportacion formato : Todos) {
        EXPECT_EQ(motivo(u"a"_s, formato), u"\"%1\": no es un fichero"_s.arg(ruta(u"a"_s)));
        struct stat estado = {};
        ASSERT_EQ(stat(tubo.constData(), &estado), 0);
        EXPECT_TRUE(S_ISFIFO(estado.st_mode)) << static_cast<int>(formato);
        EXPECT_EQ(nombres().size(), 0) << "pipes are not listed; nothing else is left";
    }
}

TEST_F(Exporta, AFolderInTheFilesPlaceIsAnErrorInEachFormat)
{
    filas(1);
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"a"_s));
    for (const FormatoExportacion formato : Todos)
        EXPECT_EQ(motivo(u"a"_s, formato), u"\"%1\": es una carpeta"_s.arg(ruta(u"a"_s)));
}

TEST_F(Exporta, ALinkStaysAndItsFileIsWrittenInEachFormat)
{
    filas(1);
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"otra"_s));
    ASSERT_EQ(symlink("otra/fichero", QFile::encodeName(ruta(u"a"_s)).constData()), 0);
    for (const FormatoExportacion formato : Todos) {
        QFile viejo{ruta(u"otra/fichero"_s)};
        ASSERT_TRUE(viejo.open(QIODevice::WriteOnly));
        viejo.write("viejo");
        viejo.close();
        ASSERT_TRUE(exportaA(u"a"_s, formato));
        EXPECT_TRUE(QFileInfo{ruta(u"a"_s)}.isSymLink()) << static_cast<int>(formato);
        EXPECT_GT(lee(u"otra/fichero"_s).size(), 30) << static_cast<int>(formato);
        EXPECT_EQ(nombres(), (QStringList{u"a"_s, u"otra"_s}));
        EXPECT_EQ(QDir{ruta(u"otra"_s)}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList{u"fichero"_s});
    }
}

TEST_F(Exporta, WhatIsBrokenOffLeavesWhatLayThere)
{
    filas(200);
    QFile viejo{ruta(u"a"_s)};
    ASSERT_TRUE(viejo.open(QIODevice::WriteOnly));
    viejo.write("viejo");
    viejo.close();
    for (const FormatoExportacion formato : Todos) {
        int avisos = 0;
        EXPECT_FALSE(exportaA(u"a"_s, formato, [&avisos](double) { return ++avisos < 2; })) << static_cast<int>(formato);
        EXPECT_EQ(nombres(), QStringList{u"a"_s});
        EXPECT_EQ(lee(u"a"_s), "viejo");
    }
}

TEST_F(Exporta, PdfHasEachRowOnceAndTheTotal)
{
    filas(120);
    ASSERT_TRUE(exportaA(u"a.pdf"_s, FormatoExportacion::Pdf));
    const QString texto = salidaDe(u"pdftotext"_s, {u"-layout"_s, ruta(u"a.pdf"_s), u"-"_s});
    for (int fila = 1; fila <= 120; ++fila)
        EXPECT_EQ(texto.count(QRegularExpression{u"Marca %1 +%1,50\\n"_s.arg(fila)}), 1) << fila;
    EXPECT_TRUE(texto.contains(u"7.320,00"_s)) << "120 * 121 / 2 + 120 * 0.5";
    EXPECT_TRUE(salidaDe(u"pdfinfo"_s, {ruta(u"a.pdf"_s)}).contains(u"Marcas de la tienda"_s));
}

TEST_F(Exporta, PngIsAPicturePerPage)
{
    filas(120);
    ASSERT_TRUE(exportaA(u"a.png"_s, FormatoExportacion::Png));
    ASSERT_GE(nombres().size(), 2);
    for (const QString& nombre : nombres()) {
        const QImage imagen{ruta(nombre)};
        EXPECT_EQ(imagen.size(), QSize(1240, 1754)) << "A4 at 150 dots an inch";
    }
    EXPECT_EQ(nombres().constFirst(), u"a_001.png"_s);
}

TEST_F(Exporta, CsvAndHtmlAndXlsxHaveTheRowsInOrder)
{
    filas(2);
    ASSERT_TRUE(exportaA(u"a.csv"_s, FormatoExportacion::Csv));
    EXPECT_EQ(lee(u"a.csv"_s), "\xEF\xBB\xBFMarca;Importe\r\nMarca 1;1,5\r\nMarca 2;2,5\r\n");
    ASSERT_TRUE(exportaA(u"a.html"_s, FormatoExportacion::Html));
    EXPECT_TRUE(lee(u"a.html"_s).contains("<tr><td>Marca 2</td><td class=\"d\">2,50</td></tr>\n<tr class=\"total\">"));
    ASSERT_TRUE(exportaA(u"a.xlsx"_s, FormatoExportacion::Xlsx));
    const QString hoja = salidaDe(u"/usr/bin/python3"_s, {QStringLiteral(KESTRANE_LEE_XLSX), ruta(u"a.xlsx"_s)});
    EXPECT_TRUE(hoja.contains(u"B3\tfloat\t2.5\t#,##0.00\t\n"_s)) << hoja.toStdString();
    EXPECT_TRUE(hoja.contains(u"B4\tint\t4\t#,##0.00\tbold\n"_s)) << hoja.toStdString();
}

TEST_F(Exporta, AReportWithoutRowsIsWrittenAllTheSame)
{
    for (const FormatoExportacion formato : Todos) {
        ASSERT_TRUE(exportaA(u"a"_s, formato));
        EXPECT_EQ(nombres(), QStringList{u"a"_s});
    }
}

} // namespace
} // namespace kestrane::report
