#include "lote/opciones.h"

#include <gtest/gtest.h>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

Resultado<Opciones, ErrorDeUso> lee(QStringList argumentos)
{
    argumentos.prepend(u"listados-lote"_s);
    return leeOpciones(argumentos, u"/programa"_s);
}

std::string rechazo(const QStringList& argumentos)
{
    const auto opciones = lee(argumentos);
    return opciones ? "" : opciones.error().mensaje.toStdString();
}

TEST(Opciones, WhatMakesNoSenseIsRefusedWithASentence)
{
    constexpr auto nada = "Indique un CONTROL, o bien --lista, --sql TEXTO o --sql-fichero FICHERO.";
    EXPECT_EQ(rechazo({}), nada);
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--sql-fichero"_s, u"b"_s}), nada);
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--lista"_s}), nada);
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--rapido"_s}), "Opción desconocida: --rapido.");
    EXPECT_EQ(rechazo({u"--sql"_s}), "A --sql le falta su valor.");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--desde"_s}), "A --desde le falta su valor.");
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--escribir=si"_s}), "--escribir no lleva valor.");
    EXPECT_EQ(rechazo({u"--sql=x"_s, u"--escribir=si"_s}), "--escribir no lleva valor.");
    EXPECT_EQ(rechazo({u"cmd_Caja1"_s, u"--completa=1"_s, u"--ticket"_s}), "--completa no lleva valor.");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--salida"_s, u""_s}), "A --salida le falta su valor.");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--listados="_s}), "A --listados le falta su valor.");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--datos"_s, u""_s}), "A --datos le falta su valor.");
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"b"_s}), "Sobra \"b\".");
    EXPECT_EQ(rechazo({u"--lista"_s, u"cmd_Marcas"_s}), "Sobra \"cmd_Marcas\".");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"cmd_Tallas"_s}), "Sobra \"cmd_Tallas\".");
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--conexion"_s, u"caja"_s}), "--conexion admite tienda o listados, no \"caja\".");
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--regional"_s, u"marciano"_s}),
              "No existe la configuración regional \"marciano\"; escríbala como es_ES.");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--hoy"_s, u"2024- 3- 5"_s}), "--hoy lleva una fecha AAAA-MM-DD, no \"2024- 3- 5\".");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--hoy"_s, u"ayer"_s}), "--hoy lleva una fecha AAAA-MM-DD, no \"ayer\".");
    EXPECT_EQ(rechazo({u"cmd_Nada"_s}), "No existe el listado \"cmd_Nada\"; con --lista se ven todos.");
}

TEST(Opciones, WhatBelongsToAnotherTaskIsRefused)
{
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--escribir"_s}), "Aquí no se admite --escribir.");
    EXPECT_EQ(rechazo({u"cmd_Marcas"_s, u"--dsn"_s, u"Otra"_s}), "Aquí no se admite --dsn.");
    EXPECT_EQ(rechazo({u"--lista"_s, u"--conexion"_s, u"tienda"_s}), "Aquí no se admite --conexion.");
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--desde"_s, u"2024-03-01"_s}), "Aquí no se admite --desde.");
    EXPECT_EQ(rechazo({u"--sql"_s, u"a"_s, u"--salida"_s, u"f"_s}), "Aquí no se admite --salida.");
    EXPECT_EQ(rechazo({u"--lista"_s, u"--hoy"_s, u"2024-03-01"_s}), "Aquí no se admite --hoy.");
}

TEST(Opciones, AReportHasItsDayAndItsFolder)
{
    const auto opciones = lee({u"cmd_Marcas"_s, u"--hoy"_s, u"2024-03-15"_s, u"--datos"_s, u"/d"_s, u"--regional"_s, u"es_ES"_s});
    ASSERT_TRUE(opciones);
    EXPECT_EQ(opciones.valor().trabajo, Opciones::Trabajo::Informe);
    EXPECT_EQ(opciones.valor().carpeta, u"/d"_s);
    EXPECT_EQ(opciones.valor().hoy, Fecha::deCalendario(2024, 3, 15));
    EXPECT_FALSE(lee({u"cmd_Marcas"_s}).valor().hoy);
    EXPECT_EQ(lee({u"--lista"_s}).valor().trabajo, Opciones::Trabajo::Lista);
}

TEST(Opciones, AStatementGoesToTheShopBesideTheProgramAndMayOnlyRead)
{
    const auto opciones = lee({u"--sql"_s, u"select 1"_s});
    ASSERT_TRUE(opciones);
    EXPECT_EQ(opciones.valor().trabajo, Opciones::Trabajo::Sql);
    EXPECT_EQ(opciones.valor().texto, u"select 1"_s);
    EXPECT_EQ(opciones.valor().base, Opciones::Base::Tienda);
    EXPECT_EQ(opciones.valor().carpeta, u"/programa/datos"_s);
    EXPECT_EQ(opciones.valor().dsn, u"TiendaKestrane"_s);
    EXPECT_FALSE(opciones.valor().escribir);
}

TEST(Opciones, EveryOptionHasItsPlace)
{
    const auto opciones = lee({u"--sql-fichero"_s, u"f.sql"_s, u"--conexion"_s, u"listados"_s, u"--datos"_s, u"/d"_s,
                               u"--escribir"_s, u"--regional"_s, u"en_US"_s});
    ASSERT_TRUE(opciones);
    EXPECT_EQ(opciones.valor().trabajo, Opciones::Trabajo::SqlFichero);
    EXPECT_EQ(opciones.valor().texto, u"f.sql"_s);
    EXPECT_EQ(opciones.valor().base, Opciones::Base::Listados);
    EXPECT_EQ(opciones.valor().carpeta, u"/d"_s);
    EXPECT_EQ(opciones.valor().dsn, u"ListKestrane"_s);
    EXPECT_TRUE(opciones.valor().escribir);
    EXPECT_EQ(opciones.valor().regional.marcaDecimal, u'.');
}

TEST(Opciones, ADataSourceMayBeNamed)
{
    EXPECT_EQ(lee({u"--sql"_s, u"a"_s, u"--dsn"_s, u"Otra"_s}).valor().dsn, u"Otra"_s);
}

TEST(Opciones, OneDashIsAsGoodAsTwo)
{
    EXPECT_EQ(lee({u"-lista"_s}).valor().trabajo, Opciones::Trabajo::Lista);
    EXPECT_EQ(lee({u"-sql"_s, u"select 1"_s}).valor().texto, u"select 1"_s);
}

TEST(Opciones, TheEmptyStoreIsAValue)
{
    EXPECT_EQ(lee({u"cmd_Marcas"_s, u"--tienda"_s, u""_s}).valor().informe.tienda, u""_s);
}

TEST(Opciones, HelpIsAskedForInThreeWays)
{
    EXPECT_EQ(lee({u"--ayuda"_s}).valor().trabajo, Opciones::Trabajo::Ayuda);
    EXPECT_EQ(lee({u"--help"_s}).valor().trabajo, Opciones::Trabajo::Ayuda);
    EXPECT_TRUE(lee({u"-h"_s}).valor().texto.startsWith(u"Uso: listados-lote"_s));
}

} // namespace
} // namespace kestrane::lote
