#include "platform/runtime/conversiones.h"

#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::enGb;
using prueba::enUs;
using prueba::es;
using prueba::horaSola;
using prueba::numeroDeError;

const ConfiguracionRegional& suecia()
{
    static const ConfiguracionRegional regional = prueba::regionalDe(u"sv_SE"_s);
    return regional;
}

const ConfiguracionRegional& alemania()
{
    static const ConfiguracionRegional regional = prueba::regionalDe(u"de_DE"_s);
    return regional;
}

Fecha leida(const QString& texto)
{
    return aFecha(texto, es());
}

int errorAlLeer(const QString& texto, const ConfiguracionRegional& regional = es())
{
    return numeroDeError([&] { return aFecha(texto, regional); });
}

// ---------------------------------------------------------------- date to text

TEST(FechaATexto, DosCifrasParaDiaYMesCuatroParaElAnio)
{
    EXPECT_EQ(aTexto(dia(2024, 3, 5), es()), u"05/03/2024"_s);
    EXPECT_EQ(aTexto(dia(2024, 3, 5), enGb()), u"05/03/2024"_s);
    EXPECT_EQ(aTexto(dia(2024, 3, 5), enUs()), u"03/05/2024"_s);
    EXPECT_EQ(aTexto(dia(2024, 3, 5), alemania()), u"05.03.2024"_s);
    EXPECT_EQ(aTexto(dia(2024, 3, 5), suecia()), u"2024-03-05"_s);
    EXPECT_EQ(aTexto(dia(2024, 12, 31), es()), u"31/12/2024"_s);
}

TEST(FechaATexto, DeLosExtremosDelCalendario)
{
    EXPECT_EQ(aTexto(dia(100, 1, 1), es()), u"01/01/0100"_s);
    EXPECT_EQ(aTexto(dia(9999, 12, 31), es()), u"31/12/9999"_s);
    EXPECT_EQ(aTexto(dia(1899, 12, 29), es()), u"29/12/1899"_s);
    EXPECT_EQ(aTexto(dia(1899, 12, 31), es()), u"31/12/1899"_s);
    EXPECT_EQ(aTexto(dia(1492, 10, 12, 2, 0, 0), es()), u"12/10/1492 2:00:00"_s);
}

TEST(FechaATexto, LaHoraSiNoEsMedianocheSinCeroDelante)
{
    EXPECT_EQ(aTexto(dia(2024, 3, 5, 9, 5, 0), es()), u"05/03/2024 9:05:00"_s);
    EXPECT_EQ(aTexto(dia(2024, 3, 5, 19, 30, 7), es()), u"05/03/2024 19:30:07"_s);
    EXPECT_EQ(aTexto(dia(2024, 3, 5, 0, 0, 1), es()), u"05/03/2024 0:00:01"_s);
    EXPECT_EQ(aTexto(dia(2024, 3, 5, 23, 59, 59), enUs()), u"03/05/2024 23:59:59"_s);
}

TEST(FechaATexto, ElDiaCeroEscribeSoloLaHora)
{
    EXPECT_EQ(aTexto(horaSola(9, 5, 0), es()), u"9:05:00"_s);
    EXPECT_EQ(aTexto(horaSola(23, 59, 59), enUs()), u"23:59:59"_s);
    EXPECT_EQ(aTexto(Fecha{}, es()), u"0:00:00"_s);
}

TEST(FechaParaSql, MesDiaAnioConBarrasEnCualquierPais)
{
    EXPECT_EQ(fechaParaSql(dia(2024, 3, 5)), u"03/05/2024"_s);
    EXPECT_EQ(fechaParaSql(dia(2024, 12, 31, 9, 5, 0)), u"12/31/2024"_s);
    EXPECT_EQ(fechaParaSql(Fecha{}), u"12/30/1899"_s);
    EXPECT_EQ(fechaParaSql(dia(100, 1, 1)), u"01/01/0100"_s);
}

// ---------------------------------------------------------------- text to date

TEST(TextoAFecha, LoQueNoEsFechaEsError13)
{
    for (const QString& texto : {u""_s, u"  "_s, u"hoy"_s, u"5"_s, u"45356"_s, u"5/3"_s, u"5/3/"_s, u"/3/2024"_s, u"5/3/2024/1"_s,
                                 u"5/3-2024"_s, u"5.3.2024"_s, u"5 3 2024"_s, u"5/3/20245"_s, u"5/mar/2024"_s, u"+5/3/2024"_s,
                                 u"5/3/2024x"_s, u"5/3/2024 x"_s, u"005/3/2024"_s, u"٥/٣/٢٠٢٤"_s})
        EXPECT_EQ(errorAlLeer(texto), 13) << texto.toStdString();
}

TEST(TextoAFecha, DiaOMesImposibleEsError13)
{
    for (const QString& texto : {u"31/04/2024"_s, u"29/02/2023"_s, u"29/02/1900"_s, u"00/03/2024"_s, u"32/01/2024"_s,
                                 u"05/00/2024"_s, u"03/13/2024"_s, u"01/01/0099"_s, u"01/01/0024"_s})
        EXPECT_EQ(errorAlLeer(texto), 13) << texto.toStdString();
    EXPECT_EQ(errorAlLeer(u"15/03/2024"_s, enUs()), 13);
}

TEST(TextoAFecha, HoraImposibleEsError13)
{
    for (const QString& texto :
         {u"24:00"_s, u"9:60"_s, u"9:05:60"_s, u"9"_s, u"9:"_s, u"9:5"_s, u":05"_s, u"9:05:0"_s, u"9:05:00:00"_s, u"009:05"_s,
          u"-9:05"_s, u"9:05 AM"_s, u"9.05"_s, u"5/3/2024 24:00"_s, u"9:05 5/3/2024"_s})
        EXPECT_EQ(errorAlLeer(texto), 13) << texto.toStdString();
}

TEST(TextoAFecha, ElErrorNombraElTexto)
{
    try {
        static_cast<void>(leida(u"31/04/2024"_s));
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.descripcion(), u"No coinciden los tipos.\n\"31/04/2024\" no es una fecha."_s);
    }
}

TEST(TextoAFecha, EnElOrdenRegional)
{
    EXPECT_EQ(aFecha(u"05/03/2024"_s, es()), dia(2024, 3, 5));
    EXPECT_EQ(aFecha(u"05/03/2024"_s, enGb()), dia(2024, 3, 5));
    EXPECT_EQ(aFecha(u"05/03/2024"_s, enUs()), dia(2024, 5, 3));
    EXPECT_EQ(aFecha(u"05.03.2024"_s, alemania()), dia(2024, 3, 5));
    EXPECT_EQ(aFecha(u"2024-03-05"_s, suecia()), dia(2024, 3, 5));
    EXPECT_EQ(leida(u"5/3/2024"_s), dia(2024, 3, 5));
    EXPECT_EQ(leida(u" 5/3/2024 "_s), dia(2024, 3, 5));
}

TEST(TextoAFecha, BarrasYGuionesValenEnTodasPartes)
{
    EXPECT_EQ(leida(u"5-3-2024"_s), dia(2024, 3, 5));
    EXPECT_EQ(aFecha(u"1/1/2000"_s, alemania()), dia(2000, 1, 1));
    EXPECT_EQ(aFecha(u"3-5-2024"_s, enUs()), dia(2024, 3, 5));
}

TEST(TextoAFecha, UnAnioDeCuatroCifrasDiceSuSitio)
{
    EXPECT_EQ(leida(u"2024-03-05"_s), dia(2024, 3, 5));
    EXPECT_EQ(leida(u"2024/3/5"_s), dia(2024, 3, 5));
    EXPECT_EQ(aFecha(u"2024-03-05"_s, enUs()), dia(2024, 3, 5));
    EXPECT_EQ(aFecha(u"05/03/2024"_s, suecia()), dia(2024, 3, 5));
}

TEST(TextoAFecha, DosCifrasDeAnioVanDe1930A2029)
{
    EXPECT_EQ(leida(u"5/3/24"_s), dia(2024, 3, 5));
    EXPECT_EQ(leida(u"5/3/29"_s), dia(2029, 3, 5));
    EXPECT_EQ(leida(u"5/3/30"_s), dia(1930, 3, 5));
    EXPECT_EQ(leida(u"5/3/99"_s), dia(1999, 3, 5));
    EXPECT_EQ(leida(u"5/3/00"_s), dia(2000, 3, 5));
    EXPECT_EQ(leida(u"5/3/7"_s), dia(2007, 3, 5));
    EXPECT_EQ(aFecha(u"24-03-05"_s, suecia()), dia(2024, 3, 5));
    EXPECT_EQ(errorAlLeer(u"29/02/23"_s), 13);
}

TEST(TextoAFecha, DeLosExtremosDelCalendario)
{
    EXPECT_EQ(leida(u"29/02/2024"_s), dia(2024, 2, 29));
    EXPECT_EQ(leida(u"29/02/2000"_s), dia(2000, 2, 29));
    EXPECT_EQ(leida(u"01/01/0100"_s), dia(100, 1, 1));
    EXPECT_EQ(leida(u"01/01/100"_s), dia(100, 1, 1));
    EXPECT_EQ(leida(u"31/12/9999"_s), dia(9999, 12, 31));
    EXPECT_EQ(leida(u"31/12/1899"_s), dia(1899, 12, 31));
    EXPECT_EQ(leida(u"30/12/1899"_s), Fecha{});
}

TEST(TextoAFecha, ConHoraYHoraSola)
{
    EXPECT_EQ(leida(u"05/03/2024 9:05:00"_s), dia(2024, 3, 5, 9, 5, 0));
    EXPECT_EQ(leida(u"05/03/2024   19:30"_s), dia(2024, 3, 5, 19, 30, 0));
    EXPECT_EQ(leida(u"9:05:00"_s), horaSola(9, 5, 0));
    EXPECT_EQ(leida(u"09:05"_s), horaSola(9, 5, 0));
    EXPECT_EQ(leida(u"0:00"_s), Fecha{});
    EXPECT_EQ(leida(u"23:59:59"_s), horaSola(23, 59, 59));
}

TEST(IdaYVuelta, CadaFechaEscritaSeLeeIgual)
{
    for (const ConfiguracionRegional& regional : {es(), enUs(), alemania(), suecia()})
        for (qint32 serie = Fecha::PrimerDiaDeSerie; serie <= Fecha::UltimoDiaDeSerie; serie += 211) {
            const Fecha conHora = Fecha::deSerie(serie, (serie - Fecha::PrimerDiaDeSerie) % Fecha::SegundosPorDia);
            ASSERT_EQ(aFecha(aTexto(conHora, regional), regional), conHora);
            ASSERT_EQ(aFecha(aTexto(conHora.sinHora(), regional), regional), conHora.sinHora());
        }
}

} // namespace
} // namespace kestrane
