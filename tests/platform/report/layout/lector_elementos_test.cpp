#include "platform/report/layout/lector_elementos.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::primero;

Layout con(const QString& elemento)
{
    return prueba::layoutDe(u"<estilo nombre=\"rojo\" color=\"#ff0000\"/>\n<detalle><banda alto=\"6\">"_s + elemento +
                            u"</banda></detalle>"_s);
}

QString rechazo(const QString& elemento)
{
    return prueba::descripcionDeError([&] { return con(elemento); });
}

template<class T>
T elemento(const QString& xml)
{
    return primero<T>(con(xml).detalle);
}

Valor valorDe(const Expresion& expresion)
{
    return ExpresionEnlazada{expresion, {u"a"_s, u"b"_s}}.valor(prueba::conFila({-3.0, 4.0}), prueba::es());
}

TEST(LectorElementos, Texto)
{
    const auto texto = elemento<Texto>(u"<texto x=\"10\" y=\"1\" ancho=\"30\" alto=\"4\" valor=\"a * 2\" formato=\"moneda\" "
                                       u"decimales=\"1\" alinea=\"derecha\" crece=\"si\""
                                       " mostrar=\"a &lt; 0\"><si condicion=\"a &lt; b\" estilo=\"rojo\"/></texto>"_s);
    EXPECT_EQ(texto.caja, QRectF(10, 1, 30, 4));
    EXPECT_EQ(valorDe(texto.valor), Valor{-6.0});
    EXPECT_EQ(texto.formato, (FormatoValor{Formato::Moneda, 1, false}));
    EXPECT_TRUE(texto.crece);
    EXPECT_EQ(valorDe(texto.mostrar), Valor{true});
    ASSERT_EQ(texto.variantes.size(), 1U);
    EXPECT_EQ(texto.variantes[0].estilo.color, QColor(255, 0, 0));
    EXPECT_EQ(texto.variantes[0].estilo.horizontal, Horizontal::Derecha);
}

TEST(LectorElementos, SinMedidasHastaLosBordes)
{
    EXPECT_EQ(elemento<Texto>(u"<texto x=\"10\" y=\"2\">hola</texto>"_s).caja, QRectF(10, 2, 176, 4));
    EXPECT_EQ(elemento<Texto>(u"<texto x=\"10\" ancho=\"*\">hola</texto>"_s).caja, QRectF(10, 0, 176, 6));
    EXPECT_EQ(elemento<Marco>(u"<marco/>"_s).caja, QRectF(0, 0, 186, 6));
    EXPECT_EQ(elemento<Linea>(u"<linea y=\"5\" ancho=\"*\"/>"_s).caja, QRectF(0, 5, 186, 0));
    EXPECT_EQ(elemento<Linea>(u"<linea x=\"5\" alto=\"3\"/>"_s).caja, QRectF(5, 0, 0, 3));
}

TEST(LectorElementos, ElTextoDeDentroQuedaComoEsta)
{
    EXPECT_EQ(valorDe(elemento<Texto>(u"<texto> it's a + 1 </texto>"_s).valor), Valor{u"it's a + 1"_s});
    EXPECT_TRUE(rechazo(u"<texto/>"_s).contains(u"«valor» o un texto dentro"_s));
    EXPECT_TRUE(rechazo(u"<texto valor=\"a\">b</texto>"_s).contains(u"«valor» o un texto dentro"_s));
}

TEST(LectorElementos, LineaYMarco)
{
    const auto linea = elemento<Linea>(u"<linea ancho=\"10\" grosor=\"0.5\" color=\"#00ff00\" hasta-el-fondo=\"si\"/>"_s);
    EXPECT_EQ(linea.grosor, 0.5);
    EXPECT_EQ(linea.color, QColor(0, 255, 0));
    EXPECT_TRUE(linea.hastaElFondo);
    const auto marco = elemento<Marco>(u"<marco ancho=\"10\" alto=\"3\" grosor=\"0\" relleno=\"#eeeeee\"/>"_s);
    EXPECT_EQ(marco.grosor, 0);
    EXPECT_EQ(marco.relleno, QColor(0xee, 0xee, 0xee));
    EXPECT_FALSE(elemento<Marco>(u"<marco/>"_s).relleno.isValid());
}

TEST(LectorElementos, ImagenYCodigo)
{
    EXPECT_EQ(valorDe(elemento<Imagen>(u"<imagen ancho=\"20\" fichero=\"fotos/logo.png\"/>"_s).fichero),
              Valor{u"fotos/logo.png"_s});
    EXPECT_EQ(valorDe(elemento<Imagen>(u"<imagen valor=\"'foto' &amp; b\"/>"_s).fichero), Valor{u"foto4"_s});
    EXPECT_TRUE(rechazo(u"<imagen/>"_s).contains(u"«fichero» o «valor»"_s));
    EXPECT_TRUE(rechazo(u"<imagen fichero=\"../secreto.png\"/>"_s).contains(u"un fichero de la carpeta del programa"_s));
    const auto codigo = elemento<Codigo39>(u"<codigo39 ancho=\"40\" valor=\"b\" leyenda=\"no\"/>"_s);
    EXPECT_EQ(valorDe(codigo.valor), Valor{4.0});
    EXPECT_FALSE(codigo.leyenda);
}

TEST(LectorElementos, LoQueSobresale)
{
    EXPECT_EQ(rechazo(u"<texto x=\"180\" ancho=\"10\">x</texto>"_s),
              u"K_x.rpt, línea 3: <texto> sobresale por la derecha: llega a 190 mm y caben 186."_s);
    EXPECT_EQ(rechazo(u"<marco y=\"4\" alto=\"3\"/>"_s),
              u"K_x.rpt, línea 3: <marco> sobresale por abajo: llega a 7 mm y la banda tiene 6."_s);
}

TEST(LectorElementos, Subinforme)
{
    const auto sub =
        elemento<Subinforme>(u"<subinforme x=\"100\" ancho=\"80\"><consulta>select c from subinformes</consulta><orden por=\"c\"/>"
                             "<tabla><columna titulo=\"C\" valor=\"c\" total=\"suma\"/></tabla></subinforme>"_s);
    EXPECT_EQ(sub.caja, QRectF(100, 0, 80, 0));
    EXPECT_EQ(sub.layout->sentencia, u"select c from subinformes"_s);
    EXPECT_EQ(sub.layout->pagina.anchoUtil(), 80);
    EXPECT_TRUE(sub.layout->pagina.esRollo());
    EXPECT_EQ(sub.layout->titulo, u"Prueba"_s);
    EXPECT_EQ(sub.layout->orden.size(), 1U);
    EXPECT_EQ(sub.layout->cabeceraInforme.size(), 1U);
    EXPECT_EQ(sub.layout->detalle.size(), 1U);
    EXPECT_EQ(sub.layout->pieInforme.size(), 1U);
    ASSERT_EQ(sub.layout->agregados.size(), 1U);
}

TEST(LectorElementos, LasSumasDeUnSubinformeSonSuyas)
{
    EXPECT_TRUE(
        con(u"<subinforme><consulta>select c from s</consulta><pie-informe><banda alto=\"4\"><texto valor=\"suma(c)\"/></banda>"
            "</pie-informe></subinforme>"_s)
            .agregados.empty());
    EXPECT_TRUE(rechazo(u"<subinforme/>"_s).contains(u"a <subinforme> le falta la consulta"_s));
}

} // namespace
} // namespace kestrane::report
