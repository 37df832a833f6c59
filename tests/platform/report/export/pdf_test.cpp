#include "platform/report/export/pdf.h"

#include "platform/report/export/informe_de_prueba.h"
#include "platform/report/export/paginas_de_prueba.h"
#include "platform/runtime/error_de_salida.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::paginasDePrueba;

class Pdf : public testing::Test
{
protected:
    void escribe(const std::vector<QSizeF>& tamanos)
    {
        QFile destino{fichero()};
        ASSERT_TRUE(destino.open(QIODevice::WriteOnly));
        EXPECT_TRUE(escribePdf(paginasDePrueba(tamanos), destino, {}));
    }

    static QString salidaDe(const QString& programa, const QStringList& argumentos)
    {
        QProcess proceso;
        proceso.start(programa, argumentos);
        EXPECT_TRUE(proceso.waitForFinished());
        EXPECT_EQ(proceso.exitCode(), 0) << proceso.readAllStandardError().toStdString();
        return QString::fromUtf8(proceso.readAllStandardOutput());
    }

    [[nodiscard]] std::pair<double, double> papel(int pagina) const
    {
        const QString numero = QString::number(pagina);
        const QString datos = salidaDe(u"pdfinfo"_s, {u"-f"_s, numero, u"-l"_s, numero, fichero()});
        const auto medidas = QRegularExpression{u"size: +([0-9.]+) x ([0-9.]+)"_s}.match(datos);
        EXPECT_TRUE(medidas.hasMatch()) << datos.toStdString();
        return {medidas.captured(1).toDouble(), medidas.captured(2).toDouble()};
    }

    [[nodiscard]] QString fichero() const { return m_carpeta.filePath(u"a.pdf"_s); }
    QTemporaryDir m_carpeta;
};

TEST_F(Pdf, AnOutputThatIsFullIsAnError)
{
    for (const qint64 caben : {0, 10, 1000}) {
        prueba::DiscoLleno lleno{caben};
        EXPECT_THROW(escribePdf(paginasDePrueba({{210, 297}, {210, 297}}), lleno, {}), ErrorDeSalida) << caben;
    }
}

TEST_F(Pdf, ItCanBeBrokenOff)
{
    QFile destino{fichero()};
    ASSERT_TRUE(destino.open(QIODevice::WriteOnly));
    int avisos = 0;
    EXPECT_FALSE(escribePdf(paginasDePrueba({{210, 297}, {210, 297}}), destino, [&avisos](double) { return ++avisos < 2; }));
}

TEST_F(Pdf, TextsStayTextsAndTheTitleIsTheReports)
{
    escribe({{210, 297}, {210, 297}});
    EXPECT_EQ(salidaDe(u"pdftotext"_s, {fichero(), u"-"_s}).simplified(), u"página 1 señalada página 2 señalada"_s);
    EXPECT_TRUE(salidaDe(u"pdfinfo"_s, {fichero()}).contains(QRegularExpression{u"Title: +Servicios\n"_s}));
    EXPECT_TRUE(salidaDe(u"pdfinfo"_s, {fichero()}).contains(QRegularExpression{u"Creator: +Kestrane Listados\n"_s}));
}

TEST_F(Pdf, EachPageIsAsLargeAsItSays)
{
    escribe({{210, 297}, {297, 210}, {80, 413.5}});
    EXPECT_THAT(papel(1), testing::Pair(testing::DoubleNear(595.3, 1), testing::DoubleNear(841.9, 1)));
    EXPECT_THAT(papel(2), testing::Pair(testing::DoubleNear(841.9, 1), testing::DoubleNear(595.3, 1)));
    EXPECT_THAT(papel(3), testing::Pair(testing::DoubleNear(226.8, 1), testing::DoubleNear(1172.1, 1)));
}

TEST_F(Pdf, WhatIsPaintedStandsWhereThePageSays)
{
    escribe({{210, 297}});
    const QString cajas = salidaDe(u"pdftotext"_s, {u"-bbox"_s, fichero(), u"-"_s});
    const auto palabra = QRegularExpression{u"xMin=\"([0-9.]+)\".*yMax=\"([0-9.]+)\">página<"_s}.match(cajas);
    ASSERT_TRUE(palabra.hasMatch()) << cajas.toStdString();
    EXPECT_NEAR(palabra.captured(1).toDouble(), 20 / 25.4 * 72, 2);
    EXPECT_NEAR(palabra.captured(2).toDouble(), 30 / 25.4 * 72, 5) << "its foot lies below the base line";
}

} // namespace
} // namespace kestrane::report
