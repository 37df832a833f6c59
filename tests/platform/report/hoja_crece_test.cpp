// Pages with bands that grow and with sub-reports.

#include "platform/report/informe_de_prueba.h"

#include <gmock/gmock.h>

#include <cmath>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaDe;
using prueba::copiaNumerada;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;
using testing::ElementsAre;

/// 10 points: a line of DejaVu Sans is 1.164 times as high.
constexpr double Renglon = 10 * 25.4 / 72 * 2384 / 2048;

/// Texts whose lines are "linea 1" to "linea N", one row for each number.
CopiaFilas parrafos(std::initializer_list<int> renglones)
{
    std::vector<std::vector<Valor>> filas;
    for (const int cuantos : renglones) {
        QStringList lineas;
        for (int i = 1; i <= cuantos; ++i)
            lineas << u"linea %1"_s.arg(i);
        filas.push_back({lineas.join(u'\n'), cuantos});
    }
    return copiaDe({u"texto"_s, u"n"_s}, filas);
}

LayoutDePrueba conTextos(double alto)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(alto);
    Banda banda;
    banda.alto = 5;
    banda.elementos.emplace_back(prueba.crece(u"texto"_s, 100));
    prueba.layout.detalle.push_back(banda);
    return prueba;
}

/// How many texts each page has.
std::vector<qsizetype> cuentas(PaginasDePrueba paginas)
{
    std::vector<qsizetype> cuentas;
    for (const QStringList& textos : paginas.textos())
        cuentas.push_back(textos.size());
    return cuentas;
}

TEST(HojaCrece, ABandIsAsHighAsItsText)
{
    LayoutDePrueba prueba = conTextos(200);
    prueba.layout.pieInforme.push_back(prueba.banda(5, u"'fin'"_s));
    const QStringList textos = PaginasDePrueba{prueba.layout, parrafos({1, 3})}.textos().front();
    // One line leaves its band at 5 mm; two more make it higher by two lines.
    EXPECT_EQ(textos[1], u"linea 1@15"_s);
    EXPECT_EQ(textos.last(), u"fin@%1"_s.arg(std::round((15 + 5 + 2 * Renglon) * 100) / 100));
}

TEST(HojaCrece, ATextThatFitsOnAPageIsNotBroken)
{
    // Ten lines are 41 mm: after the first row of five lines they go to a page of their own.
    EXPECT_THAT(cuentas(PaginasDePrueba{conTextos(50).layout, parrafos({5, 10})}), ElementsAre(5, 10));
}

TEST(HojaCrece, ATextHigherThanAPageGoesOnOnTheNext)
{
    // 50 mm hold twelve lines of 4.107 mm.
    EXPECT_THAT(cuentas(PaginasDePrueba{conTextos(50).layout, parrafos({30})}), ElementsAre(12, 12, 6));
    const auto textos = PaginasDePrueba{conTextos(50).layout, parrafos({30})}.textos();
    EXPECT_EQ(textos[0].first(), u"linea 1@10"_s);
    EXPECT_EQ(textos[1].first(), u"linea 13@10"_s);
    EXPECT_EQ(textos[2].last(), u"linea 30@%1"_s.arg(std::round((10 + 5 * Renglon) * 100) / 100));
}

TEST(HojaCrece, TextsSideBySideAreCutBetweenLinesOfBoth)
{
    LayoutDePrueba prueba = conTextos(50);
    Texto otro = prueba.crece(u"texto"_s, 50);
    otro.caja.moveLeft(110);
    otro.caja.moveTop(2);
    prueba.layout.detalle.front().elementos.emplace_back(otro);
    // The second begins 2 mm lower: 48 mm hold eleven of its lines.
    const auto paginas = PaginasDePrueba{prueba.layout, parrafos({20})}.textos();
    ASSERT_EQ(paginas.size(), 2U);
    qsizetype todos = 0;
    for (const QStringList& textos : paginas)
        todos += textos.size();
    EXPECT_EQ(todos, 40);
    EXPECT_EQ(paginas[0].filter(u"linea 12@"_s).size(), 1);
    EXPECT_EQ(paginas[0].filter(u"linea 11@"_s).size(), 2);
    EXPECT_EQ(paginas[1].filter(u"linea 12@10"_s).size(), 1); // the one that is left stands at the top
}

TEST(HojaCrece, PaperLowerThanALineComesToAnEnd)
{
    const auto paginas = PaginasDePrueba{conTextos(2).layout, parrafos({10})}.textos();
    qsizetype todos = 0;
    for (const QStringList& textos : paginas)
        todos += textos.size();
    EXPECT_EQ(todos, 10);
}

TEST(HojaCrece, TenThousandCharactersComeToAnEnd)
{
    const CopiaFilas copia = copiaDe({u"texto"_s}, {{QString{10'000, u'x'}}, {QString{u"😀"_s}.repeated(2'000)}});
    LayoutDePrueba prueba = conTextos(200);
    QString junto;
    for (const auto& pagina : PaginasDePrueba{prueba.layout, copia}.paginas())
        junto += prueba::textosDe(pagina).join(QString{});
    EXPECT_EQ(junto.count(u'x'), 10'000);
    EXPECT_EQ(junto.count(u"😀"_s), 2'000);
}

TEST(HojaCrece, FramesReachDownWithTheirBandOnEachPage)
{
    LayoutDePrueba prueba = conTextos(50);
    Marco marco;
    marco.caja = {0, 0, 190, 5};
    marco.hastaElFondo = true;
    prueba.layout.detalle.front().elementos.emplace_back(marco);
    PaginasDePrueba hojas{prueba.layout, parrafos({30})};
    std::vector<double> altos;
    for (const PaginaCompuesta& pagina : hojas.paginas()) {
        for (const Primitiva& primitiva : pagina.primitivas) {
            if (const auto* const caja = std::get_if<MarcoCompuesto>(&primitiva))
                altos.push_back(caja->caja.height());
        }
    }
    EXPECT_THAT(altos, ElementsAre(testing::DoubleNear(12 * Renglon, 0.01), testing::DoubleNear(12 * Renglon, 0.01),
                                   testing::DoubleNear(5 + 5 * Renglon, 0.01)));
}

/// A text that is one line as long as the number of pages is not known, and three once it is.
LayoutDePrueba conTotalQueCrece(double alto)
{
    LayoutDePrueba prueba;
    prueba.altoUtil(alto);
    Banda banda;
    banda.alto = 10;
    banda.elementos.emplace_back(
        prueba.crece(u"'fila ' & n & si(nulo(paginas); ''; ' de ' & paginas & ' mas palabras que no caben')"_s, 30));
    prueba.layout.detalle.push_back(banda);
    return prueba;
}

TEST(HojaCrece, TheNumberOfPagesNeitherLosesNorRepeatsRows)
{
    const LayoutDePrueba prueba = conTotalQueCrece(40);
    QStringList filas;
    for (const QStringList& textos : PaginasDePrueba{prueba.layout, copiaNumerada(10)}.textos()) {
        for (const QString& texto : textos)
            filas << texto.section(u' ', 0, 1);
    }
    QStringList esperadas;
    for (int i = 1; i <= 10; ++i)
        esperadas << u"fila %1"_s.arg(i);
    EXPECT_EQ(filas, esperadas);
}

TEST(HojaCrece, WhatGrowsByTheNumberOfPagesIsCutToItsRoom)
{
    const LayoutDePrueba prueba = conTotalQueCrece(40);
    const auto textos = PaginasDePrueba{prueba.layout, copiaNumerada(10)}.textos();
    ASSERT_EQ(textos.size(), 3U);
    EXPECT_TRUE(textos[0][0].startsWith(u"fila 1 de 3 "_s)) << textos[0][0].toStdString();
    EXPECT_TRUE(textos[0][0].endsWith(u"…@10"_s)) << textos[0][0].toStdString();
}

TEST(HojaCrece, WhatShowsOnTheLastPageAloneKeepsItsRoom)
{
    LayoutDePrueba prueba = conTextos(30);
    auto& texto = std::get<Texto>(prueba.layout.detalle.front().elementos.front());
    texto.mostrar = prueba.expresion(u"pagina = paginas"_s);
    std::vector<QStringList> textos = PaginasDePrueba{prueba.layout, parrafos({5, 5})}.textos();
    ASSERT_EQ(textos.size(), 2U);
    EXPECT_TRUE(textos[0].isEmpty());
    EXPECT_EQ(textos[1].size(), 5);
}

TEST(HojaCrece, OnSmallPaperWhatGrowsInASubreportIsCutBetweenLines)
{
    LayoutDePrueba dentro = conTextos(0);
    dentro.layout.sentencia = u"select dentro"_s;
    Subinforme subinforme;
    subinforme.caja = {0, 0, 190, 0};
    subinforme.layout = std::make_shared<const Layout>(dentro.layout);
    LayoutDePrueba prueba;
    prueba.altoUtil(30); // seven lines; twelve are 49 mm, which larger paper takes in one piece
    Banda banda;
    banda.elementos.emplace_back(subinforme);
    prueba.layout.detalle.push_back(banda);
    EXPECT_THAT(cuentas(PaginasDePrueba{prueba.layout, copiaNumerada(1), {{u"select dentro"_s, parrafos({12})}}}),
                ElementsAre(7, 5));
}

} // namespace
} // namespace kestrane::report
