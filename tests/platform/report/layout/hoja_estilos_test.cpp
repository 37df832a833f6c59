#include "platform/report/layout/hoja_estilos.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::layoutDe;
using prueba::primero;
using prueba::rechazoDe;

QString conTexto(const QString& estilos, const QString& atributos)
{
    return estilos + u"<detalle><banda alto=\"5\"><texto "_s + atributos + u">hola</texto></banda></detalle>"_s;
}

Estilo estilo(const QString& estilos, const QString& atributos)
{
    return primero<Texto>(layoutDe(conTexto(estilos, atributos)).detalle).estilo;
}

TEST(HojaEstilos, BasadoEnOtro)
{
    const QString estilos =
        u"<estilo nombre=\"base\" letra=\"Serif\" cuerpo=\"9.5\" negrita=\"si\" color=\"#102030\" fondo=\"#ffffff\"/>"
        "<estilo nombre=\"hijo\" basado-en=\"base\" cuerpo=\"7\" cursiva=\"si\" fondo=\"ninguno\" alinea=\"derecha\""
        " vertical=\"arriba\"/>"_s;
    EXPECT_EQ(estilo(estilos, u"estilo=\"hijo\""_s),
              (Estilo{u"Serif"_s, 7, true, true, QColor{16, 32, 48}, QColor{}, Horizontal::Derecha, Vertical::Arriba}));
}

TEST(HojaEstilos, SinEstiloElDeNombreTexto)
{
    EXPECT_EQ(estilo({}, {}), Estilo{});
    EXPECT_EQ(estilo(u"<estilo nombre=\"texto\" cuerpo=\"11\"/>"_s, {}).cuerpo, 11);
    EXPECT_EQ(estilo(u"<estilo nombre=\"otro\" cuerpo=\"11\"/>"_s, u"estilo=\"otro\" alinea=\"centro\""_s).horizontal,
              Horizontal::Centro);
}

TEST(HojaEstilos, LosQueNoHayYLosRepetidos)
{
    EXPECT_EQ(rechazoDe(conTexto(u"<estilo nombre=\"a\"/><estilo nombre=\"b\"/>\n"_s, u"estilo=\"c\""_s)),
              u"K_x.rpt, línea 3: hasta aquí no hay ningún estilo «c»; los que hay: a, b."_s);
    EXPECT_EQ(rechazoDe(u"<estilo nombre=\"a\"/><estilo nombre=\"a\"/>"_s), u"K_x.rpt, línea 2: ya hay un estilo «a»."_s);
}

TEST(HojaEstilos, NoHayCirculos)
{
    EXPECT_TRUE(rechazoDe(u"<estilo nombre=\"a\" basado-en=\"b\"/><estilo nombre=\"b\" basado-en=\"a\"/>"_s)
                    .contains(u"no hay ningún estilo «b»"_s));
    EXPECT_TRUE(rechazoDe(u"<estilo nombre=\"a\" basado-en=\"a\"/>"_s).contains(u"no hay ningún estilo «a»"_s));
}

} // namespace
} // namespace kestrane::report
