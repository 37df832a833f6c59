#include "platform/report/pintor.h"

#include "platform/report/informe_de_prueba.h"

#include <QPageSize>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::LayoutDePrueba;

QString salida(const QString& programa, const QStringList& argumentos)
{
    QProcess proceso;
    proceso.start(programa, argumentos);
    EXPECT_TRUE(proceso.waitForFinished()) << qPrintable(programa);
    return QString::fromUtf8(proceso.readAllStandardOutput());
}

class Pintor : public testing::Test
{
protected:
    QString enPdf(const std::vector<PaginaCompuesta>& paginas)
    {
        const QString fichero = m_carpeta.filePath(u"informe.pdf"_s);
        QPdfWriter escritor{fichero};
        escritor.setPageSize(QPageSize{QPageSize::A4});
        escritor.setPageMargins({});
        QPainter pintor{&escritor};
        PintorPaginas paginador;
        for (size_t i = 0; i < paginas.size(); ++i) {
            if (i > 0)
                escritor.newPage();
            paginador.pinta(pintor, paginas[i], escritor.resolution() / 25.4);
        }
        pintor.end();
        return fichero;
    }

    static QImage enImagen(const PaginaCompuesta& pagina, double puntosPorPulgada)
    {
        const double escala = puntosPorPulgada / 25.4;
        QImage imagen{(pagina.tamano * escala).toSize(), QImage::Format_RGB32};
        imagen.fill(Qt::white);
        QPainter pintor{&imagen};
        PintorPaginas{}.pinta(pintor, pagina, escala);
        return imagen;
    }

    QTemporaryDir m_carpeta;
};

TEST_F(Pintor, APdfGivesItsTextBack)
{
    LayoutDePrueba prueba;
    prueba.layout.detalle.push_back(prueba.banda(10, u"t"_s));
    Banda negrita = prueba.banda(10, u"'negrita: ' & t"_s);
    std::get<Texto>(negrita.elementos[0]).estilo.negrita = true;
    prueba.layout.detalle.push_back(negrita);
    const QString dificil = u"Ñandú Begoña, ¿1.234,50 €? «ÁÉÍÓÚ» ç – ª"_s;
    const CopiaFilas copia = prueba::copiaDe({u"t"_s}, {{dificil}, {u"segunda"_s}});
    const QString texto =
        salida(u"pdftotext"_s, {u"-layout"_s, enPdf(prueba::PaginasDePrueba{prueba.layout, copia}.paginas()), u"-"_s});
    EXPECT_TRUE(texto.contains(dificil + u'\n')) << qPrintable(texto);
    EXPECT_TRUE(texto.contains(u"negrita: "_s + dificil)) << qPrintable(texto);
    EXPECT_TRUE(texto.contains(u"segunda\n"_s)) << qPrintable(texto);
}

TEST_F(Pintor, CellsSideBySideStayApartInAPdf)
{
    LayoutDePrueba prueba;
    Banda banda;
    banda.alto = 5;
    for (int i = 0; i < 3; ++i) {
        Texto celda = prueba.texto(u"n * 1000 + %1"_s.arg(i));
        celda.caja = {i * 25.0, 0, 24, 5};
        celda.estilo.horizontal = Horizontal::Derecha;
        banda.elementos.emplace_back(celda);
    }
    prueba.layout.detalle.push_back(banda);
    const QString texto = salida(
        u"pdftotext"_s, {u"-layout"_s, enPdf(prueba::PaginasDePrueba{prueba.layout, prueba::copiaNumerada(2)}.paginas()), u"-"_s});
    EXPECT_EQ(texto.simplified(), u"1000 1001 1002 2000 2001 2002"_s);
}

TEST_F(Pintor, TextsThatNeedShapingAreInAPdfToo)
{
    LayoutDePrueba prueba;
    prueba.layout.detalle.push_back(prueba.banda(10, u"t"_s));
    const CopiaFilas copia = prueba::copiaDe({u"t"_s}, {{u"e\u0301poca"_s}, {u"שלום"_s}, {u"caja 😀"_s}});
    const QString texto = salida(u"pdftotext"_s, {enPdf(prueba::PaginasDePrueba{prueba.layout, copia}.paginas()), u"-"_s})
                              .normalized(QString::NormalizationForm_C);
    EXPECT_TRUE(texto.contains(u"época"_s)) << qPrintable(texto);
    EXPECT_TRUE(texto.contains(u"שלום"_s)) << qPrintable(texto);
    EXPECT_TRUE(texto.contains(u"caja"_s)) << qPrintable(texto);
}

TEST_F(Pintor, ABarCodeIsReadByAScanner)
{
    LayoutDePrueba prueba;
    Codigo39 codigo;
    codigo.caja = {10, 10, 70, 15};
    codigo.valor = prueba.expresion(u"t"_s);
    Banda banda;
    banda.alto = 40;
    banda.elementos.emplace_back(codigo);
    prueba.layout.detalle.push_back(banda);
    prueba::PaginasDePrueba paginas{prueba.layout, prueba::copiaDe({u"t"_s}, {{u"PK-0042 A"_s}})};
    const QString fichero = m_carpeta.filePath(u"codigo.png"_s);
    ASSERT_TRUE(enImagen(paginas.paginas().front(), 300).save(fichero));
    EXPECT_EQ(salida(u"zbarimg"_s, {u"--quiet"_s, u"--raw"_s, u"-Sdisable"_s, u"-Scode39.enable"_s, fichero}), u"PK-0042 A\n"_s);
}

TEST_F(Pintor, FramesLinesAndPicturesStandWhereThePageSays)
{
    PaginaCompuesta pagina;
    pagina.tamano = {100, 50};
    QImage azul{2, 2, QImage::Format_RGB32};
    azul.fill(Qt::blue);
    pagina.primitivas = {MarcoCompuesto{{10, 10, 20, 10}, 0, {}, Qt::red}, TrazoCompuesto{{0, 40, 100, 40}, 1, Qt::green},
                         ImagenCompuesta{{50, 10, 10, 10}, azul}};
    const QImage imagen = enImagen(pagina, 254); // ten pixels to the millimetre
    EXPECT_EQ(imagen.pixelColor(150, 150), QColor{Qt::red});
    EXPECT_EQ(imagen.pixelColor(101, 101), QColor{Qt::red});
    EXPECT_EQ(imagen.pixelColor(98, 150), QColor{Qt::white});
    EXPECT_EQ(imagen.pixelColor(500, 400), QColor{Qt::green});
    EXPECT_EQ(imagen.pixelColor(500, 408), QColor{Qt::white});
    EXPECT_EQ(imagen.pixelColor(550, 150), QColor{Qt::blue});
}

TEST_F(Pintor, AnotherScaleAndAnotherReportAreNotMixedUp)
{
    LayoutDePrueba una;
    una.layout.detalle.push_back(una.banda(10, u"'HHHH'"_s));
    LayoutDePrueba otra = una;
    std::get<Texto>(otra.layout.detalle[0].elementos[0]).estilo.color = Qt::red;
    const auto copia = prueba::copiaNumerada(1);
    const PaginaCompuesta negra = prueba::PaginasDePrueba{una.layout, copia}.paginas().front();
    const PaginaCompuesta roja = prueba::PaginasDePrueba{otra.layout, copia}.paginas().front();
    PintorPaginas pintorPaginas;
    const auto pinta = [&](const PaginaCompuesta& pagina, double escala) {
        QImage imagen{800, 400, QImage::Format_RGB32};
        imagen.fill(Qt::white);
        QPainter pintor{&imagen};
        pintorPaginas.pinta(pintor, pagina, escala);
        return imagen;
    };
    const QImage primera = pinta(negra, 10);
    EXPECT_NE(pinta(roja, 10), primera);
    EXPECT_NE(pinta(negra, 20), primera);
    EXPECT_EQ(pinta(negra, 10), primera);
}

} // namespace
} // namespace kestrane::report
