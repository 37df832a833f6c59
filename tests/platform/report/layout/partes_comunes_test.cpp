#include "platform/report/layout/partes_comunes.h"

#include "platform/report/layout/soporte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class PartesComunesTest : public testing::Test
{
protected:
    void escribe(const QString& fichero, const QString& contenido) const
    {
        QDir{carpeta.path()}.mkpath(u"partes"_s);
        QFile destino{carpeta.filePath(fichero)};
        ASSERT_TRUE(destino.open(QIODevice::WriteOnly));
        destino.write((u"<partes xmlns=\"urn:kestrane:informe\">"_s + contenido + u"</partes>"_s).toUtf8());
    }

    [[nodiscard]] Layout lee(const QString& contenido) const
    {
        const QString xml =
            u"<informe xmlns=\"urn:kestrane:informe\" titulo=\"Tallas\"><consulta>select a from informes</consulta>"_s + contenido +
            u"</informe>"_s;
        return leeLayout(xml.toUtf8(), u"K_x.rpt"_s, carpeta.path());
    }

    [[nodiscard]] QString rechazo(const QString& contenido) const
    {
        return prueba::descripcionDeError([&] { return lee(contenido); });
    }

    QTemporaryDir carpeta;
    const QString usa = u"<usa fichero=\"partes/familia.xml\"/>\n"_s;
};

TEST_F(PartesComunesTest, EstilosYBandasPorSuNombre)
{
    escribe(u"partes/familia.xml"_s, u"<estilo nombre=\"texto\" cuerpo=\"10\"/><bandas nombre=\"pie\"><banda alto=\"4\">"
                                     "<texto valor=\"titulo\"/></banda><banda alto=\"2\"/></bandas>"_s);
    const Layout layout = lee(usa + u"<pie-pagina><banda alto=\"1\"/><bandas de=\"pie\"/></pie-pagina>"_s);
    ASSERT_EQ(layout.piePagina.size(), 3U);
    EXPECT_EQ(layout.piePagina[0].alto, 1);
    EXPECT_EQ(layout.piePagina[1].alto, 4);
    const auto& texto = std::get<Texto>(layout.piePagina[1].elementos[0]);
    EXPECT_EQ(texto.estilo.cuerpo, 10);
    EXPECT_EQ(texto.caja, QRectF(0, 0, 186, 4));
    EXPECT_EQ(texto.valor.lugar().fichero, u"familia.xml"_s);
}

TEST_F(PartesComunesTest, UnEstiloPropioCambiaElComun)
{
    escribe(u"partes/familia.xml"_s, u"<estilo nombre=\"texto\" cuerpo=\"10\" negrita=\"si\"/>"_s);
    const Layout layout = lee(usa + u"<estilo nombre=\"texto\" basado-en=\"texto\" cuerpo=\"7\"/>"
                                    "<detalle><banda alto=\"4\"><texto>x</texto></banda></detalle>"_s);
    const auto& texto = prueba::primero<Texto>(layout.detalle);
    EXPECT_EQ(texto.estilo.cuerpo, 7);
    EXPECT_TRUE(texto.estilo.negrita);
}

TEST_F(PartesComunesTest, LoQueFaltaYLoRepetido)
{
    EXPECT_EQ(rechazo(usa), u"K_x.rpt, línea 1: no se puede leer «%1/partes/familia.xml»: no existe."_s.arg(carpeta.path()));
    escribe(u"partes/familia.xml"_s, u"<bandas nombre=\"pie\"/>"_s);
    EXPECT_EQ(rechazo(usa + u"<detalle><bandas de=\"cabeza\"/></detalle>"_s),
              u"K_x.rpt, línea 2: no hay ningunas bandas «cabeza»; las que hay: pie."_s);
    EXPECT_TRUE(rechazo(usa + usa).startsWith(u"familia.xml, línea 1: ya hay unas bandas «pie»"_s));
}

TEST_F(PartesComunesTest, UnErrorDentroNombraElFicheroDeLasPartes)
{
    escribe(u"partes/familia.xml"_s, u"\n<estilo nombre=\"a\" cuerpo=\"grande\"/>"_s);
    EXPECT_TRUE(rechazo(usa).startsWith(u"familia.xml, línea 2: <estilo>, cuerpo: "_s));
}

TEST_F(PartesComunesTest, LasPartesNoUsanOtras)
{
    escribe(u"partes/familia.xml"_s, usa);
    EXPECT_TRUE(rechazo(usa).contains(u"<usa> no puede estar dentro de <partes>"_s));
}

TEST_F(PartesComunesTest, RepetirlasMuchasVecesTieneLimite)
{
    escribe(u"partes/familia.xml"_s, u"<bandas nombre=\"b\">"_s + u"<banda alto=\"1\"/>"_s.repeated(1000) + u"</bandas>"_s);
    EXPECT_TRUE(
        rechazo(usa + u"<detalle>"_s + u"<bandas de=\"b\"/>"_s.repeated(11) + u"</detalle>"_s).contains(u"demasiadas bandas"_s));
    EXPECT_EQ(lee(usa + u"<detalle>"_s + u"<bandas de=\"b\"/>"_s.repeated(10) + u"</detalle>"_s).detalle.size(), 10'000U);
}

TEST_F(PartesComunesTest, SinCarpetaNoHayPartes)
{
    EXPECT_TRUE(prueba::rechazoDe(usa).contains(u"no hay ninguna carpeta"_s));
}

} // namespace
} // namespace kestrane::report
