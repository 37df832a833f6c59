#include "layouts/papel_leido.h"

#include <QProcess>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

std::vector<PaginaLeida> leePapel(const QString& pdf)
{
    QProcess lector;
    lector.start(u"pdftotext"_s, {u"-raw"_s, u"-bbox"_s, pdf, u"-"_s});
    EXPECT_TRUE(lector.waitForFinished(-1));
    EXPECT_EQ(lector.exitCode(), 0) << lector.readAllStandardError().toStdString();
    QXmlStreamReader xml{lector.readAllStandardOutput()};
    std::vector<PaginaLeida> paginas;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"page")
            paginas.emplace_back();
        if (xml.name() != u"word")
            continue;
        const double izquierda = xml.attributes().value(u"xMin"_s).toDouble();
        const double derecha = xml.attributes().value(u"xMax"_s).toDouble();
        paginas.back().push_back({xml.readElementText(), izquierda, derecha});
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return paginas;
}

} // namespace kestrane::prueba
