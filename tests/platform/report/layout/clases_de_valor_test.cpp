#include "platform/report/layout/clases_de_valor.h"

#include "platform/report/layout/agregados_expresion.h"
#include "platform/report/layout/formato.h"
#include "platform/runtime/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(ClasesDeValor, QueValoresValen)
{
    const auto valen = [](const ClaseValor& clase, std::initializer_list<QString> buenos, std::initializer_list<QString> malos) {
        for (const QString& valor : buenos)
            EXPECT_TRUE(vale(clase, valor)) << clase.nombre.toString().toStdString() << ": " << valor.toStdString();
        for (const QString& valor : malos)
            EXPECT_FALSE(vale(clase, valor)) << clase.nombre.toString().toStdString() << ": " << valor.toStdString();
    };
    valen(clases::Medida, {u"0"_s, u"12"_s, u"12.5"_s, u"0.125"_s},
          {u""_s, u"12,5"_s, u"-1"_s, u"1e3"_s, u" 1"_s, u"10000"_s, u"1\n"_s});
    valen(clases::Ancho, {u"*"_s, u"3.5"_s}, {u"**"_s, u"10%"_s});
    valen(clases::SiNo, {u"si"_s, u"no"_s}, {u"Si"_s, u"sí"_s, u"true"_s});
    valen(clases::Color, {u"#1f3a5f"_s, u"#FFFFFF"_s}, {u"red"_s, u"#fff"_s, u"ninguno"_s});
    valen(clases::Fondo, {u"ninguno"_s, u"#1f3a5f"_s}, {u"nada"_s});
    valen(clases::Margenes, {u"12 10 12 10"_s, u"0 0 0 0.5"_s}, {u"12"_s, u"12 10 12"_s, u"1 2 3 4 5"_s, u"12  10 12 10"_s});
    valen(clases::Papel, {u"A4"_s, u"carta"_s, u"100x150"_s, u"62.5x29"_s}, {u"a4"_s, u"100"_s, u"0x10"_s, u"x"_s});
    valen(clases::FicheroPartes, {u"partes/familia.xml"_s, u"a.xml"_s},
          {u"../a.xml"_s, u"/a.xml"_s, u"a.txt"_s, u"a/../b.xml"_s, u"c:a.xml"_s, u"a\\b.xml"_s});
    valen(clases::FicheroImagen, {u"fotos/logo.png"_s, u"logo de la tienda.png"_s},
          {u"../logo.png"_s, u"/logo.png"_s, u"fotos/../a.png"_s, u"c:\\a.png"_s, u""_s});
    valen(clases::Columnas, {u"1"_s, u"20"_s}, {u"0"_s, u"21"_s});
    valen(clases::Palabra, {u"seccion"_s, u"g_1"_s}, {u"mi-grupo"_s, u"1a"_s, u"sección"_s});
    valen(clases::Texto, {u""_s, u"Nº de sección"_s}, {});
}

TEST(ClasesDeValor, CadaFormatoYCadaTotalQueSePuedeEscribirExiste)
{
    for (const QStringView nombre : clases::Formato.patron.split(u'|'))
        EXPECT_TRUE(formatoDeNombre(nombre).has_value()) << nombre.toString().toStdString();
    for (const QStringView nombre : clases::Total.patron.split(u'|'))
        EXPECT_TRUE(agregadoDeNombre(nombre).has_value()) << nombre.toString().toStdString();
}

} // namespace
} // namespace kestrane::report
