// A report with a summary box and with bar codes, from its layout file to spreadsheets.

#include "apoyo/tienda_de_prueba.h"
#include "platform/report/export/exportacion.h"
#include "platform/report/layout/lector_layout.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using testing::IsSupersetOf;

/// The bar code's text is a column of its own; the summary has columns for sheets.
constexpr auto LayoutDeCaja = R"(<?xml version="1.0" encoding="UTF-8"?>
<informe xmlns="urn:kestrane:informe" titulo="Caja">
  <consulta>select texto1, numerico1 from informes</consulta>
  <orden por="texto1"/>
  <detalle>
    <banda alto="12"><codigo39 ancho="60" valor="texto1"/></banda>
  </detalle>
  <datos>
    <columna titulo="Código" valor="texto1"/>
    <columna titulo="Importe" valor="numerico1" formato="moneda"/>
  </datos>
  <pie-informe>
    <banda alto="5">
      <subinforme %1>
        <consulta>select texto1, numerico1 from subinformes</consulta>
        <orden por="texto1"/>
        <detalle><banda alto="5"><texto valor="texto1"/></banda></detalle>
        %2
      </subinforme>
    </banda>
  </pie-informe>
</informe>
)";

class SubinformesExportados : public testing::Test
{
protected:
    SubinformesExportados()
    {
        m_tienda.ejecutaListados(u"insert into informes (texto1, numerico1) values ('A-12', 1.5)"_s);
        m_tienda.ejecutaListados(u"insert into subinformes (texto1, numerico1) values ('Tarjeta', 30)"_s);
        m_tienda.ejecutaListados(u"insert into subinformes (texto1, numerico1) values ('Efectivo', 70)"_s);
    }

    /// `atributos` and `datos` of the sub-report.
    QString exportado(FormatoExportacion formato, const QString& atributos = {}, const QString& datos = {})
    {
        const QByteArray xml = QString::fromUtf8(LayoutDeCaja).arg(atributos, datos).toUtf8();
        Documento documento{leeLayout(xml, u"caja.rpt"_s, m_carpeta.path()), m_tienda.entorno()};
        EXPECT_TRUE(exporta(documento, formato, m_carpeta.filePath(u"caja.xlsx"_s)));
        return m_carpeta.filePath(u"caja.xlsx"_s);
    }
    QByteArray leido(FormatoExportacion formato, const QString& atributos = {}, const QString& datos = {})
    {
        QFile escrito{exportado(formato, atributos, datos)};
        EXPECT_TRUE(escrito.open(QIODevice::ReadOnly));
        return escrito.readAll();
    }
    std::vector<std::string> hojas(const QString& atributos = {}, const QString& datos = {})
    {
        QProcess lector;
        lector.start(u"/usr/bin/python3"_s,
                     {QStringLiteral(KESTRANE_LEE_XLSX), exportado(FormatoExportacion::Xlsx, atributos, datos)});
        EXPECT_TRUE(lector.waitForFinished());
        std::vector<std::string> lineas;
        for (const QByteArray& linea : lector.readAllStandardOutput().split('\n'))
            lineas.push_back(linea.toStdString());
        return lineas;
    }

    prueba::TiendaDePrueba m_tienda;
    QTemporaryDir m_carpeta;
};

const QString ConDatos = u"<datos><columna titulo=\"Forma de pago\" valor=\"texto1\"/>"
                         "<columna titulo=\"Cobrado\" valor=\"numerico1\" formato=\"moneda\" total=\"suma\"/></datos>"_s;

TEST_F(SubinformesExportados, InXlsxTheyAreASheetBehindTheRows)
{
    const auto lineas = hojas(u"titulo=\"Por formas de pago\""_s, ConDatos);
    EXPECT_TRUE(lineas[0].starts_with("sheet\t['Caja', 'Por formas de pago']\t")) << lineas[0];
    EXPECT_THAT(lineas,
                IsSupersetOf<std::string>({"A2\tstr\tA-12\tGeneral\t", "B2\tfloat\t1.5\t#,##0.00\t",
                                           "A1\tstr\tForma de pago\tGeneral\tbold", "A2\tstr\tEfectivo\tGeneral\t",
                                           "B2\tint\t70\t#,##0.00\t", "B3\tint\t30\t#,##0.00\t", "B4\tint\t100\t#,##0.00\tbold"}));
}

TEST_F(SubinformesExportados, WithoutATitleItIsASummaryOfItsStatementsColumns)
{
    const auto lineas = hojas();
    EXPECT_TRUE(lineas[0].starts_with("sheet\t['Caja', 'Resumen']\t")) << lineas[0];
    EXPECT_THAT(lineas, IsSupersetOf<std::string>({"A1\tstr\ttexto1\tGeneral\tbold", "B3\tint\t30\tGeneral\t"}));
}

TEST_F(SubinformesExportados, InHtmlTheyStandBelowTheRows)
{
    const QByteArray todo = leido(FormatoExportacion::Html, u"titulo=\"Por formas de pago\""_s, ConDatos);
    EXPECT_TRUE(todo.contains("<tr><td>A-12</td><td class=\"d\">1,50</td></tr>\n</tbody>\n</table>\n<h2>Por formas de pago</h2>\n"))
        << todo.toStdString();
    EXPECT_TRUE(
        todo.contains("<tr><td>Tarjeta</td><td class=\"d\">30,00</td></tr>\n<tr class=\"total\"><th scope=\"row\">Total</th>"
                      "<td class=\"d\">100,00</td></tr>\n"));
}

TEST_F(SubinformesExportados, CsvHasTheRowsAloneBarCodesAsTheirText)
{
    EXPECT_EQ(leido(FormatoExportacion::Csv, {}, ConDatos), "\xEF\xBB\xBF"
                                                            "Código;Importe\r\nA-12;1,5\r\n");
}

TEST_F(SubinformesExportados, AmountsHaveTheShopsDecimals)
{
    m_tienda.entorno().ponDecimales(3);
    EXPECT_THAT(hojas(), testing::Contains("B2\tfloat\t1.5\t#,##0.000\t"));
    EXPECT_TRUE(leido(FormatoExportacion::Html).contains("<td class=\"d\">1,500</td>"));
    m_tienda.entorno().ponDecimales(0);
    EXPECT_THAT(hojas(), testing::Contains("B2\tfloat\t1.5\t#,##0\t"));
    EXPECT_TRUE(leido(FormatoExportacion::Html).contains("<td class=\"d\">2</td>"));
}

} // namespace
} // namespace kestrane::report
