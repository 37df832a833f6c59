#include "platform/report/compositor.h"

#include "platform/report/informe_de_prueba.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaDe;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;
using testing::ElementsAre;

/// The page of a layout whose detail, of 20 mm, holds one element; for one row (t, n).
PaginaCompuesta pagina(LayoutDePrueba& prueba, const Elemento& elemento, const Valor& texto, const Valor& numero = 1)
{
    Banda banda;
    banda.alto = 20;
    banda.elementos.push_back(elemento);
    prueba.layout.detalle = {banda};
    return PaginasDePrueba{prueba.layout, copiaDe({u"t"_s, u"n"_s}, {{texto, numero}})}.paginas().front();
}

template<class Tipo>
std::vector<Tipo> de(const PaginaCompuesta& pagina)
{
    std::vector<Tipo> encontradas;
    for (const Primitiva& primitiva : pagina.primitivas) {
        if (const auto* const una = std::get_if<Tipo>(&primitiva))
            encontradas.push_back(*una);
    }
    return encontradas;
}

Texto enCaja(LayoutDePrueba& prueba, Horizontal horizontal, Vertical vertical)
{
    Texto texto = prueba.texto(u"t"_s);
    texto.caja = {20, 2, 50, 10};
    texto.estilo.horizontal = horizontal;
    texto.estilo.vertical = vertical;
    return texto;
}

TEST(Compositor, TextsStandInTheirBoxes)
{
    LayoutDePrueba prueba;
    const MedidaEstilo medida{prueba.texto(u"t"_s).estilo};
    const double ancho = medida.ancho(u"Año"_s);
    const auto base = [&](Horizontal horizontal, Vertical vertical) {
        return de<TextoCompuesto>(pagina(prueba, enCaja(prueba, horizontal, vertical), u"Año"_s)).front().base;
    };
    // The band stands at (10, 10), the box at (20, 2) in it: 30 to 80 across, 12 to 22 down.
    const QPointF arriba = base(Horizontal::Izquierda, Vertical::Arriba);
    EXPECT_NEAR(arriba.x(), 30, 1e-6);
    EXPECT_NEAR(arriba.y(), 12 + medida.ascendente(), 1e-6);
    const QPointF centro = base(Horizontal::Centro, Vertical::Centro);
    EXPECT_NEAR(centro.x(), 55 - ancho / 2, 1e-4);
    EXPECT_NEAR(centro.y(), 17 - medida.altoRenglon() / 2 + medida.ascendente(), 1e-6);
    const QPointF abajo = base(Horizontal::Derecha, Vertical::Abajo);
    EXPECT_NEAR(abajo.x(), 80 - ancho, 1e-4);
    EXPECT_NEAR(abajo.y(), 22 - medida.altoRenglon() + medida.ascendente(), 1e-6);
}

TEST(Compositor, TooWideTextsAreCut)
{
    LayoutDePrueba prueba;
    Texto texto = prueba.texto(u"t"_s);
    texto.caja.setWidth(20);
    const auto textos = de<TextoCompuesto>(pagina(prueba, texto, QString{10'000, u'x'}));
    ASSERT_EQ(textos.size(), 1U);
    EXPECT_TRUE(textos[0].texto.endsWith(u'…'));
    EXPECT_LE(textos[0].ancho, 20.01);
}

TEST(Compositor, TheLinesOfABrokenTextGoOnFromItsFirstOnAPage)
{
    LayoutDePrueba prueba;
    const Elemento crece = prueba.crece(u"t"_s, 50);
    std::vector<bool> siguen;
    for (const TextoCompuesto& texto : de<TextoCompuesto>(pagina(prueba, crece, u"uno\ndos\n\ntres"_s)))
        siguen.push_back(texto.sigue);
    EXPECT_THAT(siguen, ElementsAre(false, true, true));
    Banda banda;
    banda.alto = 20;
    banda.elementos = {crece};
    prueba.layout.detalle = {banda};
    const QString largo = u"línea\n"_s.repeated(300);
    const auto paginas = PaginasDePrueba{prueba.layout, copiaDe({u"t"_s, u"n"_s}, {{largo, 1}})}.paginas();
    ASSERT_GE(paginas.size(), 2U);
    EXPECT_FALSE(de<TextoCompuesto>(paginas[1]).at(0).sigue) << "what it goes on from stands on another page";
    EXPECT_TRUE(de<TextoCompuesto>(paginas[1]).at(1).sigue);
}

TEST(Compositor, NullIsBlank)
{
    LayoutDePrueba prueba;
    EXPECT_TRUE(pagina(prueba, prueba.texto(u"t"_s), Valor{}).primitivas.empty());
    EXPECT_TRUE(pagina(prueba, prueba.crece(u"t"_s, 50), Valor{}).primitivas.empty());
    Imagen imagen;
    imagen.caja = {0, 0, 20, 20};
    imagen.fichero = prueba.expresion(u"t"_s);
    EXPECT_TRUE(pagina(prueba, imagen, Valor{}).primitivas.empty());
    Codigo39 codigo;
    codigo.caja = {0, 0, 50, 15};
    codigo.valor = prueba.expresion(u"t"_s);
    EXPECT_TRUE(pagina(prueba, codigo, Valor{}).primitivas.empty());
}

TEST(Compositor, ConditionsColourAndHide)
{
    LayoutDePrueba prueba;
    Texto texto = prueba.texto(u"t"_s);
    texto.mostrar = prueba.expresion(u"n <> 0"_s);
    Estilo rojo = texto.estilo;
    rojo.color = Qt::red;
    texto.variantes.push_back({prueba.expresion(u"n < 0"_s), rojo});
    EXPECT_TRUE(pagina(prueba, texto, u"x"_s, 0).primitivas.empty());
    const PaginaCompuesta negativa = pagina(prueba, texto, u"x"_s, -1);
    EXPECT_EQ((*negativa.estilos)[static_cast<size_t>(de<TextoCompuesto>(negativa).front().estilo)].color, Qt::red);
}

TEST(Compositor, FormatsFollowTheRegionalMarks)
{
    LayoutDePrueba prueba;
    Texto texto = prueba.texto(u"n"_s);
    texto.formato = {Formato::Moneda, 2, false};
    EXPECT_EQ(de<TextoCompuesto>(pagina(prueba, texto, Valor{}, -1234.5)).front().texto, u"-1.234,50"_s);
}

TEST(Compositor, AGroundIsPaintedBelowItsText)
{
    LayoutDePrueba prueba;
    Texto texto = enCaja(prueba, Horizontal::Izquierda, Vertical::Centro);
    texto.estilo.fondo = Qt::yellow;
    const PaginaCompuesta una = pagina(prueba, texto, u"x"_s);
    ASSERT_EQ(una.primitivas.size(), 2U);
    const auto& fondo = std::get<MarcoCompuesto>(una.primitivas.front());
    EXPECT_EQ(fondo.caja, QRectF(30, 12, 50, 10));
    EXPECT_EQ(fondo.relleno, Qt::yellow);
    EXPECT_EQ(fondo.grosor, 0);
}

TEST(Compositor, LinesAndFramesStandWhereTheyAreDrawn)
{
    LayoutDePrueba prueba;
    Linea linea;
    linea.caja = {0, 20, 100, 0};
    linea.grosor = 0.5;
    const auto trazos = de<TrazoCompuesto>(pagina(prueba, linea, Valor{}));
    ASSERT_EQ(trazos.size(), 1U);
    EXPECT_EQ(trazos[0].linea, QLineF(10, 30, 110, 30));
    EXPECT_EQ(trazos[0].grosor, 0.5);
    linea.caja = {5, 0, 0, 1};
    linea.hastaElFondo = true;
    EXPECT_EQ(de<TrazoCompuesto>(pagina(prueba, linea, Valor{})).front().linea, QLineF(15, 10, 15, 30));
    Marco marco;
    marco.caja = {1, 2, 3, 4};
    EXPECT_EQ(de<MarcoCompuesto>(pagina(prueba, marco, Valor{})).front().caja, QRectF(11, 12, 3, 4));
}

TEST(Compositor, PicturesKeepTheirProportions)
{
    const QTemporaryDir carpeta;
    QImage roja{40, 20, QImage::Format_RGB32};
    roja.fill(Qt::red);
    ASSERT_TRUE(roja.save(carpeta.filePath(u"logo.png"_s)));
    LayoutDePrueba prueba;
    prueba.layout.carpeta = carpeta.path();
    Imagen imagen;
    imagen.caja = {0, 0, 20, 20};
    imagen.fichero = prueba.expresion(u"t"_s);
    const auto imagenes = de<ImagenCompuesta>(pagina(prueba, imagen, u"logo.png"_s));
    ASSERT_EQ(imagenes.size(), 1U);
    EXPECT_EQ(imagenes[0].caja, QRectF(10, 15, 20, 10));
}

TEST(Compositor, AMissingPictureIsAFrameWithItsName)
{
    LayoutDePrueba prueba;
    Imagen imagen;
    imagen.caja = {0, 0, 60, 20};
    imagen.fichero = prueba.expresion(u"t"_s);
    const PaginaCompuesta una = pagina(prueba, imagen, u"fotos\\nada.png"_s);
    EXPECT_EQ(de<MarcoCompuesto>(una).front().caja, QRectF(10, 10, 60, 20));
    EXPECT_THAT(prueba::textosDe(una), ElementsAre(u"nada.png"_s));
}

TEST(Compositor, BarCodesHaveBarsAndALegend)
{
    LayoutDePrueba prueba;
    Codigo39 codigo;
    codigo.caja = {0, 0, 60, 15};
    codigo.valor = prueba.expresion(u"t"_s);
    const PaginaCompuesta una = pagina(prueba, codigo, u"A1"_s);
    ASSERT_EQ(de<BarrasCompuestas>(una).size(), 1U);
    EXPECT_EQ(de<BarrasCompuestas>(una).front().barras.size(), 20U);
    EXPECT_THAT(prueba::textosDe(una), ElementsAre(u"A1"_s));
    codigo.leyenda = false;
    EXPECT_TRUE(prueba::textosDe(pagina(prueba, codigo, u"A1"_s)).isEmpty());
}

TEST(Compositor, WhatIsNoCode39IsABoxWithTheText)
{
    LayoutDePrueba prueba;
    Codigo39 codigo;
    codigo.caja = {0, 0, 60, 15};
    codigo.valor = prueba.expresion(u"t"_s);
    const PaginaCompuesta una = pagina(prueba, codigo, u"AÑO"_s);
    EXPECT_TRUE(de<BarrasCompuestas>(una).empty());
    EXPECT_EQ(de<MarcoCompuesto>(una).size(), 1U);
    EXPECT_THAT(prueba::textosDe(una), ElementsAre(u"AÑO"_s));
}

} // namespace
} // namespace kestrane::report
