// Rows that are Null in every column, on paper and in each export format.

#include "apoyo/tienda_de_prueba.h"
#include "platform/report/export/exportacion.h"
#include "platform/report/layout/lector_layout.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

constexpr auto LayoutDeNulos = R"XML(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Nulos">
  <pagina papel="A4" orientacion="apaisada"/>
  <estilo nombre="celda" cuerpo="9"/>
  <estilo nombre="rojo" basado-en="celda" color="#ff0000"/>
  <consulta>select texto1, texto2, numerico1, numerico2, fecha3 from informes</consulta>
  <orden por="numerico1"/>
  <grupo nombre="seccion" por="texto2" titulo="texto2"/>
  <tabla cabecera="celda" celda="celda" total="celda">
    <columna titulo="Texto" valor="texto1" crece="si"/>
    <columna titulo="Suma" valor="numerico1" formato="moneda" total="suma"><si condicion="numerico1 &lt; 0" estilo="rojo"/></columna>
    <columna titulo="Cuenta" valor="numerico2" formato="entero" total="cuenta"/>
    <columna titulo="Media" valor="numerico2 / numerico1" formato="porcentaje" total="media"/>
    <columna titulo="Mayor" valor="fecha3" formato="fecha" total="maximo"/>
    <columna titulo="Hora" valor="fecha3" formato="hora"/>
  </tabla>
  <detalle>
    <banda alto="10">
      <imagen x="0" ancho="10" valor="texto1"/>
      <codigo39 x="20" ancho="60" valor="texto1"/>
      <texto x="100" ancho="50" valor="mayusculas(texto1) &amp; izquierda(texto2; 3) &amp; formato(numerico1; 'moneda')"/>
      <texto x="160" ancho="50" valor="anio(fecha3)" mostrar="numerico1 &gt; 0"/>
    </banda>
  </detalle>
</informe>
)XML";

/// Three rows of nothing but Null, exported.
class Nulos : public testing::Test
{
protected:
    Nulos()
    {
        for (int fila = 0; fila < 3; ++fila)
            m_tienda.ejecutaListados(u"insert into informes (texto1, texto2, numerico1, numerico2, fecha3)"
                                     " values (null, null, null, null, null)"_s);
    }

    QString exportado(FormatoExportacion formato)
    {
        Documento documento{leeLayout(QByteArray{LayoutDeNulos}, u"nulos.rpt"_s, m_carpeta.path()), m_tienda.entorno()};
        EXPECT_TRUE(exporta(documento, formato, fichero()));
        return fichero();
    }
    QByteArray leido(FormatoExportacion formato)
    {
        QFile escrito{exportado(formato)};
        EXPECT_TRUE(escrito.open(QIODevice::ReadOnly));
        return escrito.readAll();
    }
    static std::vector<std::string> lineasDe(const QString& programa, const QStringList& argumentos)
    {
        QProcess proceso;
        proceso.start(programa, argumentos);
        EXPECT_TRUE(proceso.waitForFinished());
        EXPECT_EQ(proceso.exitCode(), 0) << proceso.readAllStandardError().toStdString();
        std::vector<std::string> lineas;
        for (const QByteArray& linea : proceso.readAllStandardOutput().split('\n')) {
            if (!linea.trimmed().isEmpty())
                lineas.push_back(linea.simplified().toStdString());
        }
        return lineas;
    }

    [[nodiscard]] QString fichero() const { return m_carpeta.filePath(u"nulos.xlsx"_s); }

    prueba::TiendaDePrueba m_tienda;
    QTemporaryDir m_carpeta;
};

TEST_F(Nulos, OnPaperThereAreHeadingsAndTheTotalsOfNothing)
{
    EXPECT_THAT(lineasDe(u"pdftotext"_s, {u"-layout"_s, exportado(FormatoExportacion::Pdf), u"-"_s}),
                ElementsAre("Texto Suma Cuenta Media Mayor Hora", "Total 0,00 0", "Total 0,00 0"))
        << "the group's and the report's";
}

TEST_F(Nulos, APictureIsPaintedAllTheSame)
{
    EXPECT_EQ(QImage{exportado(FormatoExportacion::Png)}.size(), QSize(1754, 1240));
}

TEST_F(Nulos, CsvHasEmptyFields)
{
    EXPECT_EQ(leido(FormatoExportacion::Csv), "\xEF\xBB\xBFTexto;Suma;Cuenta;Media;Mayor;Hora\r\n;;;;;\r\n;;;;;\r\n;;;;;\r\n");
}

TEST_F(Nulos, HtmlHasEmptyCells)
{
    const QByteArray fila = "<tr><td></td><td class=\"d\"></td><td class=\"d\"></td><td class=\"d\"></td><td></td><td></td></tr>\n";
    const QByteArray total = "</th><td class=\"d\">0,00</td><td class=\"d\">0</td><td class=\"d\"></td><td></td><td></td></tr>\n";
    EXPECT_TRUE(leido(FormatoExportacion::Html)
                    .contains("<tr class=\"grupo n0\"><th scope=\"rowgroup\" colspan=\"6\"></th></tr>\n" + fila + fila + fila +
                              "<tr class=\"total\"><th scope=\"row\">Total " + total +
                              "<tr class=\"total\"><th scope=\"row\">Total" + total));
}

TEST_F(Nulos, XlsxHasNoCellsButHeadingsAndTotals)
{
    const auto lineas = lineasDe(u"/usr/bin/python3"_s, {QStringLiteral(KESTRANE_LEE_XLSX), exportado(FormatoExportacion::Xlsx)});
    ASSERT_GT(lineas.size(), 9U);
    EXPECT_THAT((std::vector<std::string>{lineas.begin() + 9, lineas.end()}),
                ElementsAre("A6 str Total General bold", "B6 int 0 #,##0.00 bold", "C6 int 0 #,##0 bold",
                            "A7 str Total General bold", "B7 int 0 #,##0.00 bold", "C7 int 0 #,##0 bold"));
}

} // namespace
} // namespace kestrane::report
