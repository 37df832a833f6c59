#include "platform/runtime/configuracion_regional.h"

#include "platform/runtime/soporte.h"

#include <array>
#include <cstdlib>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::regionalDe;
using Orden = ConfiguracionRegional::OrdenFecha;

TEST(ConfiguracionRegional, RechazaNombresDesconocidos)
{
    for (const QString& nombre : {u""_s, u"basura"_s, u"xx_YY"_s, u"Spanish"_s, u"C"_s, u"POSIX"_s, u"C.UTF-8"_s, u"es_ES.UTF-8"_s,
                                  u"ca_ES@valencia"_s, u"es_ES_basura"_s, u"es_"_s, u"_ES"_s, u" es_ES"_s})
        EXPECT_FALSE(ConfiguracionRegional::deNombre(nombre)) << nombre.toStdString();
}

TEST(ConfiguracionRegional, NoDaOtroPaisPorElPedido)
{
    EXPECT_FALSE(ConfiguracionRegional::deNombre(u"es_ZZ"_s));
    EXPECT_FALSE(ConfiguracionRegional::deNombre(u"en_ES"_s));
    EXPECT_FALSE(ConfiguracionRegional::deNombre(u"ca_US"_s));
}

TEST(ConfiguracionRegional, Espania)
{
    const ConfiguracionRegional es = ConfiguracionRegional::espania();
    EXPECT_EQ(es.nombre, u"es_ES"_s);
    EXPECT_EQ(es.marcaDecimal, u',');
    EXPECT_EQ(es.marcaMiles, u'.');
    EXPECT_EQ(es.marcaFecha, u'/');
    EXPECT_EQ(es.ordenFecha, Orden::DiaMesAnio);
    EXPECT_EQ(es.primerDiaSemana, 1);
}

TEST(ConfiguracionRegional, MesesEspanioles)
{
    const std::array<QString, 12> meses{u"enero"_s, u"febrero"_s, u"marzo"_s,      u"abril"_s,   u"mayo"_s,      u"junio"_s,
                                        u"julio"_s, u"agosto"_s,  u"septiembre"_s, u"octubre"_s, u"noviembre"_s, u"diciembre"_s};
    const std::array<QString, 12> abreviados{u"ene"_s, u"feb"_s, u"mar"_s,  u"abr"_s, u"may"_s, u"jun"_s,
                                             u"jul"_s, u"ago"_s, u"sept"_s, u"oct"_s, u"nov"_s, u"dic"_s};
    EXPECT_EQ(ConfiguracionRegional::espania().meses, meses);
    EXPECT_EQ(ConfiguracionRegional::espania().mesesAbreviados, abreviados);
}

TEST(ConfiguracionRegional, EspaniaPorSusNombres)
{
    EXPECT_EQ(regionalDe(u"es_ES"_s), ConfiguracionRegional::espania());
    EXPECT_EQ(regionalDe(u"es-ES"_s), ConfiguracionRegional::espania());
    EXPECT_EQ(regionalDe(u"es"_s), ConfiguracionRegional::espania());
}

TEST(ConfiguracionRegional, EstadosUnidosPuntoYMesDelante)
{
    const ConfiguracionRegional us = regionalDe(u"en_US"_s);
    EXPECT_EQ(us.nombre, u"en_US"_s);
    EXPECT_EQ(us.marcaDecimal, u'.');
    EXPECT_EQ(us.marcaMiles, u',');
    EXPECT_EQ(us.marcaFecha, u'/');
    EXPECT_EQ(us.ordenFecha, Orden::MesDiaAnio);
    EXPECT_EQ(us.primerDiaSemana, 7);
    EXPECT_EQ(us.meses[0], u"January"_s);
    EXPECT_EQ(us.mesesAbreviados[11], u"Dec"_s);
}

TEST(ConfiguracionRegional, GranBretaniaPuntoYDiaDelante)
{
    const ConfiguracionRegional gb = regionalDe(u"en_GB"_s);
    EXPECT_EQ(gb.marcaDecimal, u'.');
    EXPECT_EQ(gb.marcaFecha, u'/');
    EXPECT_EQ(gb.ordenFecha, Orden::DiaMesAnio);
    EXPECT_EQ(gb.primerDiaSemana, 1);
}

TEST(ConfiguracionRegional, MarcaYOrdenDeLaFechaCorta)
{
    const auto es = [](const QString& nombre, Orden orden, char16_t marca) {
        EXPECT_EQ(regionalDe(nombre).ordenFecha, orden) << nombre.toStdString();
        EXPECT_EQ(regionalDe(nombre).marcaFecha, QChar{marca}) << nombre.toStdString();
    };
    es(u"de_DE"_s, Orden::DiaMesAnio, u'.');
    es(u"nl_NL"_s, Orden::DiaMesAnio, u'-');
    es(u"sv_SE"_s, Orden::AnioMesDia, u'-');
    es(u"eu_ES"_s, Orden::AnioMesDia, u'/');
    es(u"hu_HU"_s, Orden::AnioMesDia, u'.');
    es(u"ja_JP"_s, Orden::AnioMesDia, u'/');
    es(u"pt_PT"_s, Orden::DiaMesAnio, u'/');
    es(u"ar_EG"_s, Orden::DiaMesAnio, u'/');
}

TEST(ConfiguracionRegional, MesesComoSeNombranSolos)
{
    EXPECT_EQ(regionalDe(u"ca_ES"_s).meses[3], u"abril"_s);
    EXPECT_EQ(regionalDe(u"ca_ES"_s).mesesAbreviados[0], u"gen."_s);
}

TEST(ConfiguracionRegional, CifrasDelCeroAlNueveConMarcasCorrientes)
{
    EXPECT_EQ(regionalDe(u"ar_EG"_s).marcaDecimal, u'.');
    EXPECT_EQ(regionalDe(u"ar_EG"_s).marcaMiles, u',');
    EXPECT_EQ(regionalDe(u"fr_FR"_s).marcaDecimal, u',');
    EXPECT_TRUE(regionalDe(u"fr_FR"_s).marcaMiles.isSpace());
    EXPECT_NE(regionalDe(u"es_MX"_s).marcaDecimal, regionalDe(u"es_MX"_s).marcaMiles);
}

#ifdef Q_OS_UNIX
// The system's locale is read once per process: each case runs in a process of its own.

void pon(const char* general, const char* numeros, const char* fechas)
{
    for (const char* nombre : {"LC_ALL", "LC_MESSAGES", "LC_MEASUREMENT", "LC_MONETARY", "LC_COLLATE", "LANGUAGE"})
        qunsetenv(nombre);
    qputenv("LANG", general);
    qputenv("LC_NUMERIC", numeros);
    qputenv("LC_TIME", fechas);
}

[[noreturn]] void saleSi(bool bien)
{
    std::_Exit(bien ? 0 : 1);
}

// NOLINTNEXTLINE(readability-function-cognitive-complexity,readability-function-size): the macro's own branches
void delSistemaEs(const ConfiguracionRegional& esperada, const char* general, const char* numeros = "", const char* fechas = "")
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT((pon(general, numeros, fechas), saleSi(ConfiguracionRegional::delSistema() == esperada)),
                testing::ExitedWithCode(0), "")
        << general;
}

TEST(ConfiguracionDelSistemaDeathTest, SinIdiomaRigeElEspaniolDeEspania)
{
    for (const char* nombre : {"C", "POSIX", "C.UTF-8", ""})
        delSistemaEs(ConfiguracionRegional::espania(), nombre);
}

TEST(ConfiguracionDelSistemaDeathTest, TomaElIdiomaDeLaMaquina)
{
    delSistemaEs(ConfiguracionRegional::espania(), "es_ES.UTF-8");
    delSistemaEs(regionalDe(u"en_US"_s), "en_US.UTF-8");
    delSistemaEs(regionalDe(u"en_GB"_s), "en_GB.UTF-8");
}

TEST(ConfiguracionDelSistemaDeathTest, NumerosYFechasDeOtroPaisSiLaMaquinaLosTieneAsi)
{
    ConfiguracionRegional esperada = ConfiguracionRegional::espania();
    esperada.nombre = u"en_US"_s;
    delSistemaEs(esperada, "en_US.UTF-8", "es_ES.UTF-8", "es_ES.UTF-8");
}
#endif

} // namespace
} // namespace kestrane
