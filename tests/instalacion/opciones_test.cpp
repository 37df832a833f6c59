#include "instalacion/opciones.h"

#include <gtest/gtest.h>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;

Resultado<Opciones, QString> lee(QStringList argumentos)
{
    argumentos.prepend(u"crear-tienda"_s);
    return leeOpciones(argumentos, u"programa"_s, u"mostrador"_s);
}

std::string rechazo(const QStringList& argumentos)
{
    const auto opciones = lee(argumentos);
    return opciones ? "" : opciones.error().toStdString();
}

TEST(OpcionesCrearTienda, WhatMakesNoSenseIsRefusedWithASentence)
{
    EXPECT_EQ(rechazo({u"--vacio"_s}), "Opción desconocida: --vacio.");
    EXPECT_EQ(rechazo({u"--motor"_s, u"oracle"_s}), "No se conoce el motor \"oracle\": elija sqlite, postgresql o mariadb.");
    EXPECT_EQ(rechazo({u"--tipo"_s, u"Peluqueria"_s}), "No se conoce el tipo \"Peluqueria\".");
    EXPECT_EQ(rechazo({u"--tamano"_s, u"siglo"_s}), "No se conoce el tamaño \"siglo\": elija dia, mes, anio o cadena.");
    EXPECT_EQ(rechazo({u"--semilla"_s, u"x"_s}), "La semilla \"x\" no es un número.");
    EXPECT_EQ(rechazo({u"--hoy"_s, u"2024-02-30"_s}),
              "El día \"2024-02-30\" no vale: escríbalo como 2024-06-14, de 1990 en adelante.");
    EXPECT_EQ(rechazo({u"--hoy"_s, u"2024-+3-+5"_s}),
              "El día \"2024-+3-+5\" no vale: escríbalo como 2024-06-14, de 1990 en adelante.");
    EXPECT_EQ(rechazo({u"--vacia=si"_s, u"--reemplazar"_s}), "--vacia no lleva valor.");
    EXPECT_EQ(rechazo({u"--datos"_s, u""_s}), "A --datos le falta su valor.");
    EXPECT_EQ(rechazo({u"--vacia"_s, u"--motor"_s}), "A --motor le falta su valor.");
    EXPECT_EQ(rechazo({u"--tipo"_s, u"TPV"_s, u"--terminal-de"_s, u"Sur"_s}),
              "No hay ninguna tienda \"Sur\" de ese tipo y tamaño: Centro, Gran Centro.");
    EXPECT_EQ(rechazo({u"--tamano"_s, u"dia"_s, u"--terminal-de"_s, u"Centro"_s}),
              "No hay ninguna tienda \"Centro\": en un día hay una sola, sin nombre.");
    EXPECT_EQ(rechazo({u"otra"_s}), "No se sabe qué hacer con \"otra\".");
}

TEST(OpcionesCrearTienda, ContradictionsAreRefused)
{
    EXPECT_EQ(rechazo({u"--vacia"_s, u"--tipo"_s, u"SPA"_s}), "Las bases de datos vacías no llevan datos: quite --vacia o --tipo.");
    EXPECT_EQ(rechazo({u"--dsn"_s, u"Tienda"_s}),
              "Con un origen de datos hay que indicar el servidor: añada --motor postgresql o --motor mariadb.");
    EXPECT_EQ(rechazo({u"--motor"_s, u"mariadb"_s, u"--datos"_s, u"d"_s, u"--dsn-listados"_s, u"L"_s}),
              "Las dos bases de datos van a un servidor: quite --datos o --dsn-listados.");
}

TEST(OpcionesCrearTienda, WithoutOptionsItIsTheDemoShopOfAMonthBesideTheProgram)
{
    const Opciones opciones = lee({}).valor();
    EXPECT_EQ(opciones.trabajo, Opciones::Trabajo::Demostracion);
    EXPECT_EQ(opciones.motor, jet::Motor::Sqlite);
    EXPECT_EQ(opciones.siExiste, Opciones::SiExiste::Rehusa);
    EXPECT_EQ(opciones.carpeta, u"programa/datos"_s);
    EXPECT_EQ(opciones.demo.tamano, demo::Tamano::Mes);
    EXPECT_EQ(opciones.demo.terminal, u"mostrador"_s);
}

TEST(OpcionesCrearTienda, AServerHasItsDataSources)
{
    const Opciones opciones =
        lee({u"--vacia"_s, u"--motor"_s, u"postgresql"_s, u"--dsn-listados"_s, u"L"_s, u"--reemplazar"_s}).valor();
    EXPECT_EQ(opciones.trabajo, Opciones::Trabajo::Vacias);
    EXPECT_EQ(opciones.motor, jet::Motor::PostgreSql);
    EXPECT_EQ(opciones.dsn, u"TiendaKestrane"_s);
    EXPECT_EQ(opciones.dsnListados, u"L"_s);
    EXPECT_EQ(opciones.siExiste, Opciones::SiExiste::Reemplaza);
}

TEST(OpcionesCrearTienda, TheDemoShopIsDescribedByItsOptions)
{
    const demo::Parametros demo =
        lee({u"--tamano"_s, u"anio"_s, u"--semilla"_s, u"7"_s, u"--hoy"_s, u"2023-05-02"_s, u"--terminal"_s, u"caja2"_s})
            .valor()
            .demo;
    EXPECT_EQ(demo.tamano, demo::Tamano::Anio);
    EXPECT_EQ(demo.semilla, 7U);
    EXPECT_EQ(demo.hoy, *Fecha::deCalendario(2023, 5, 2));
    EXPECT_EQ(demo.terminal, u"caja2"_s);
    EXPECT_EQ(demo.tiendaDelTerminal, u""_s);
    EXPECT_EQ(lee({u"--terminal-de"_s, u"Norte"_s}).valor().demo.tiendaDelTerminal, u"Norte"_s);
}

} // namespace
} // namespace kestrane::instalacion
