#include "platform/report/layout/lector_pagina.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::layoutDe;
using prueba::rechazoDe;

Pagina pagina(const QString& contenido)
{
    return layoutDe(contenido).pagina;
}

TEST(LectorPagina, SinDecirNadaA4DePie)
{
    EXPECT_EQ(pagina({}).tamano, QSizeF(210, 297));
    EXPECT_EQ(pagina({}).anchoUtil(), 186);
}

TEST(LectorPagina, PapelOrientacionYMargenes)
{
    const Pagina apaisada = pagina(u"<pagina papel=\"A5\" orientacion=\"apaisada\" margenes=\"10 8 6 4\"/>"_s);
    EXPECT_EQ(apaisada.tamano, QSizeF(210, 148));
    EXPECT_EQ(apaisada.margenes, QMarginsF(10, 8, 6, 4));
    EXPECT_EQ(apaisada.anchoUtil(), 194);
    EXPECT_EQ(pagina(u"<pagina papel=\"62.5x29\" margenes=\"1 1 1 1\"/>"_s).tamano, QSizeF(62.5, 29));
    EXPECT_EQ(pagina(u"<pagina papel=\"carta\"/>"_s).tamano, QSizeF(215.9, 279.4));
}

TEST(LectorPagina, Etiquetas)
{
    const Pagina hoja = pagina(u"<pagina margenes=\"7 15 7 15\" columnas=\"3\" separacion=\"2.5\"/>"_s);
    EXPECT_EQ(hoja.columnas, 3);
    EXPECT_DOUBLE_EQ(anchoDeColumna(hoja), (210 - 14 - 5) / 3.0);
}

TEST(LectorPagina, UnRolloEsTanLargoComoSuContenido)
{
    const Pagina rollo = pagina(u"<rollo ancho=\"80\" margenes=\"4 4 4 4\" largo-maximo=\"3000\"/>"_s);
    EXPECT_TRUE(rollo.esRollo());
    EXPECT_EQ(rollo.anchoUtil(), 72);
    EXPECT_EQ(rollo.largoMaximo, 3000);
}

TEST(LectorPagina, Rechazos)
{
    EXPECT_TRUE(rechazoDe(u"<rollo ancho=\"80\" largo-maximo=\"5000.5\"/>"_s).contains(u"hasta 5000"_s));
    EXPECT_TRUE(rechazoDe(u"<rollo ancho=\"80\" largo-maximo=\"9000\"/>"_s).contains(u"hasta 5000"_s));
    EXPECT_TRUE(rechazoDe(u"<pagina/><rollo ancho=\"80\"/>"_s).contains(u"solo puede haber uno de los dos"_s));
    EXPECT_EQ(rechazoDe(u"<pagina margenes=\"100 0 110 0\"/>"_s),
              u"K_x.rpt, línea 2: los márgenes y las columnas no dejan sitio en el papel."_s);
    EXPECT_TRUE(rechazoDe(u"<pagina columnas=\"20\" separacion=\"9\"/>"_s).contains(u"no dejan sitio"_s));
    EXPECT_TRUE(rechazoDe(u"<rollo ancho=\"5\"/>"_s).contains(u"no dejan sitio"_s));
    EXPECT_TRUE(rechazoDe(u"<pagina/><pagina/>"_s).contains(u"solo puede haber uno"_s));
}

} // namespace
} // namespace kestrane::report
