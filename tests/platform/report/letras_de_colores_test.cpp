#include "platform/report/letras_de_colores.h"

#include "platform/report/informe_de_prueba.h"
#include "platform/report/pintor.h"

#include <gtest/gtest.h>

#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaDe;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;

/// A report of one text as PDF, and as another program paints it at 100 dots an inch.
class EnPdf
{
public:
    explicit EnPdf(const QString& texto)
    {
        LayoutDePrueba prueba;
        prueba.layout.detalle.push_back(prueba.banda(20, u"t"_s));
        std::get<Texto>(prueba.layout.detalle[0].elementos[0]).estilo.cuerpo = 40;
        PaginasDePrueba hojas{prueba.layout, copiaDe({u"t"_s}, {{texto}})};
        QPdfWriter escritor{pdf()};
        escritor.setResolution(1200);
        escritor.setPageMargins({});
        QPainter pintor{&escritor};
        PintorPaginas{}.pinta(pintor, hojas.paginas().front(), 1200 / 25.4);
        pintor.end();
        EXPECT_EQ(
            QProcess::execute(u"pdftoppm"_s, {u"-r"_s, u"100"_s, u"-png"_s, u"-singlefile"_s, pdf(), m_carpeta.filePath(u"a"_s)}),
            0);
        m_pintado.load(m_carpeta.filePath(u"a.png"_s));
        EXPECT_FALSE(m_pintado.isNull());
    }

    [[nodiscard]] QString texto() const
    {
        QProcess lector;
        lector.start(u"pdftotext"_s, {pdf(), u"-"_s});
        EXPECT_TRUE(lector.waitForFinished());
        return QString::fromUtf8(lector.readAllStandardOutput()).simplified();
    }
    /// How many dots are neither grey nor white.
    [[nodiscard]] int deColor() const
    {
        return cuenta([](const QColor& color) { return color.saturation() > 100 && color.value() > 60; });
    }
    [[nodiscard]] int negros() const
    {
        return cuenta([](const QColor& color) { return color.value() < 60; });
    }

private:
    template<class Es>
    [[nodiscard]] int cuenta(Es es) const
    {
        int cuantos = 0;
        for (int y = 0; y < m_pintado.height(); ++y)
            for (int x = 0; x < m_pintado.width(); ++x)
                cuantos += es(m_pintado.pixelColor(x, y)) ? 1 : 0;
        return cuantos;
    }

    [[nodiscard]] QString pdf() const { return m_carpeta.filePath(u"a.pdf"_s); }

    QTemporaryDir m_carpeta;
    QImage m_pintado;
};

TEST(LetrasDeColores, EmojiStandInPdfInTheirColours)
{
    const EnPdf pizza{u"🧑‍🍳 🥑 corte"_s};
    EXPECT_GT(pizza.deColor(), 800) << "two pictures of some fifty dots";
    EXPECT_GT(pizza.negros(), 200) << "the word beside them";
    EXPECT_EQ(pizza.texto(), u"corte"_s);
}

TEST(LetrasDeColores, OtherTextsStayTexts)
{
    const EnPdf hebreo{u"שלום Ñ"_s};
    EXPECT_EQ(hebreo.deColor(), 0);
    EXPECT_GT(hebreo.negros(), 200);
    EXPECT_TRUE(hebreo.texto().contains(u"שלום"_s)) << hebreo.texto().toStdString();
    QImage papel{100, 50, QImage::Format_RGB32};
    QPainter pintor{&papel};
    EXPECT_FALSE(pintaConColores(pintor, QFont{u"DejaVu Sans"_s}, u"שלום Ñ"_s));
}

} // namespace
} // namespace kestrane::report
