#include "platform/report/layout/arbol_xml.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

ElementoXml arbol(const QString& xml)
{
    return leeArbol(xml.toUtf8(), u"K_x.rpt"_s, u"informe");
}

QString rechazo(const QString& dentro)
{
    return prueba::descripcionDeError(
        [&] { return arbol(u"<informe xmlns=\"urn:kestrane:informe\" titulo=\"x\">\n"_s + dentro + u"\n</informe>"_s).nombre; });
}

QString rechazoEntero(const QString& xml)
{
    return prueba::descripcionDeError([&] { return arbol(xml).nombre; });
}

TEST(LeeArbol, ElementosConSuLineaYAtributos)
{
    const ElementoXml raiz =
        arbol(u"<?xml version=\"1.0\"?>\n<!-- nota -->\n<informe xmlns=\"urn:kestrane:informe\" titulo=\"A &amp; B\">\n"
              "<consulta>\n  select <![CDATA[1 < 2]]>\n</consulta></informe>"_s);
    EXPECT_EQ(*raiz.atributo(u"titulo"), u"A & B"_s);
    EXPECT_EQ(raiz.atributo(u"dsn"), nullptr);
    ASSERT_EQ(raiz.hijos.size(), 1U);
    EXPECT_EQ(raiz.hijos[0].lugar.linea, 4);
    EXPECT_EQ(raiz.hijos[0].texto, u"select 1 < 2"_s);
    EXPECT_EQ(raiz.unico(u"consulta"), &raiz.hijos[0]);
    EXPECT_EQ(raiz.unico(u"detalle"), nullptr);
}

TEST(LeeArbol, LoQueNoEsDelVocabulario)
{
    EXPECT_TRUE(rechazo(u"<parrafo/>"_s)
                    .startsWith(u"K_x.rpt, línea 2: <parrafo> no puede estar dentro de <informe>; lo que puede: usa, "_s));
    EXPECT_EQ(rechazo(u"<usa archivo=\"a.xml\"/>"_s),
              u"K_x.rpt, línea 2: <usa> no tiene ningún «archivo»; los suyos son: fichero."_s);
    EXPECT_EQ(rechazo(u"<usa/>"_s), u"K_x.rpt, línea 2: a <usa> le falta fichero."_s);
    EXPECT_EQ(rechazo(u"\n<detalle><banda alto=\"5 mm\"/></detalle>"_s),
              u"K_x.rpt, línea 3: <banda>, alto: se esperaba una medida en milímetros, como 12.5 y hay «5 mm»."_s);
    EXPECT_EQ(rechazo(u"<detalle>suelto</detalle>"_s), u"K_x.rpt, línea 2: dentro de <detalle> sobra el texto «suelto»."_s);
    EXPECT_TRUE(rechazo(u"<otro:usa xmlns:otro=\"urn:otro\" fichero=\"a.xml\"/>"_s).contains(u"no es del espacio de nombres"_s));
}

TEST(LeeArbol, LaRaizHaDeSerLaEsperada)
{
    EXPECT_EQ(rechazoEntero(u"<partes xmlns=\"urn:kestrane:informe\"/>"_s),
              u"K_x.rpt, línea 1: se esperaba <informe> y hay <partes>."_s);
    EXPECT_TRUE(rechazoEntero(u"<informe titulo=\"x\"/>"_s).contains(u"no es del espacio de nombres «urn:kestrane:informe»"_s));
}

TEST(LeeArbol, LoQueNoEsXml)
{
    EXPECT_TRUE(rechazoEntero(u"hola"_s).startsWith(u"K_x.rpt, línea 1: no es XML correcto: "_s));
    EXPECT_TRUE(rechazoEntero(u""_s).contains(u"no es XML correcto"_s));
    EXPECT_TRUE(rechazo(u"<detalle>"_s).contains(u"no es XML correcto"_s));
    EXPECT_TRUE(
        rechazoEntero(u"<informe xmlns=\"urn:kestrane:informe\" titulo=\"x\"/><otra/>"_s).contains(u"no es XML correcto"_s));
}

TEST(LeeArbol, NiDoctypeNiEntidades)
{
    const QString bomba = u"<!DOCTYPE a [<!ENTITY b \"bbbb\"><!ENTITY c \"&b;&b;\">]><informe>&c;</informe>"_s;
    EXPECT_TRUE(rechazoEntero(bomba).contains(u"no se admiten ni DOCTYPE"_s));
    EXPECT_FALSE(rechazo(u"<consulta>&c;</consulta>"_s).isEmpty());
}

TEST(LeeArbol, Limites)
{
    const QString hondo = u"<detalle><banda alto=\"1\"><subinforme>"_s;
    EXPECT_TRUE(rechazo(hondo.repeated(9)).contains(u"demasiados unos dentro de otros"_s));
    EXPECT_TRUE(rechazo(u"<usa fichero=\"a.xml\"/>"_s.repeated(10'000)).contains(u"hay demasiados elementos"_s));
    EXPECT_EQ(rechazo(u"<usa fichero=\"a.xml\"/>"_s.repeated(9'999)), QString{});
    EXPECT_TRUE(rechazo(QString(1024 * 1024, u' ')).contains(u"demasiado grande"_s));
}

TEST(ElementoXml, UnicoNoAdmiteDos)
{
    const ElementoXml raiz = arbol(u"<informe xmlns=\"urn:kestrane:informe\" titulo=\"x\">\n<detalle/>\n<detalle/></informe>"_s);
    EXPECT_EQ(prueba::descripcionDeError([&] { return raiz.unico(u"detalle"); }),
              u"K_x.rpt, línea 3: ya hay un <detalle> en la línea 2: solo puede haber uno."_s);
}

} // namespace
} // namespace kestrane::report
