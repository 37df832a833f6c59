#include "platform/runtime/conversiones.h"

#include "platform/runtime/soporte.h"

#include <bit>
#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::enUs;
using prueba::es;
using prueba::numeroDeError;

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double NoEsNumero = std::numeric_limits<double>::quiet_NaN();

QString escrito(double numero)
{
    return aTexto(numero, es());
}

int errorAlLeer(const QString& texto, const ConfiguracionRegional& regional = es())
{
    return numeroDeError([&] { return aDoble(texto, regional); });
}

// ---------------------------------------------------------------- double to text

TEST(NumeroATexto, LoQueSeDesbordoNoLlegaASerTexto)
{
    EXPECT_EQ(numeroDeError([] { return escrito(Infinito); }), 6);
    EXPECT_EQ(numeroDeError([] { return escrito(-Infinito); }), 6);
    EXPECT_EQ(numeroDeError([] { return escrito(NoEsNumero); }), 6);
    EXPECT_EQ(numeroDeError([] { return numeroParaSql(Infinito, es()); }), 6);
}

TEST(NumeroATexto, EnterosSinDecimales)
{
    EXPECT_EQ(escrito(0), u"0"_s);
    EXPECT_EQ(escrito(-0.0), u"0"_s);
    EXPECT_EQ(escrito(2), u"2"_s);
    EXPECT_EQ(escrito(-7), u"-7"_s);
    EXPECT_EQ(escrito(100), u"100"_s);
    EXPECT_EQ(escrito(1234567), u"1234567"_s);
}

TEST(NumeroATexto, MarcaDecimalRegionalSinCerosAlFinal)
{
    EXPECT_EQ(escrito(12.5), u"12,5"_s);
    EXPECT_EQ(escrito(-1.05), u"-1,05"_s);
    EXPECT_EQ(escrito(1234.5), u"1234,5"_s);
    EXPECT_EQ(escrito(0.1), u"0,1"_s);
    EXPECT_EQ(escrito(-0.25), u"-0,25"_s);
    EXPECT_EQ(escrito(10.01), u"10,01"_s);
    EXPECT_EQ(aTexto(1234.5, enUs()), u"1234.5"_s);
}

TEST(NumeroATexto, HastaQuinceCifrasSignificativas)
{
    EXPECT_EQ(escrito(0.1 + 0.2), u"0,3"_s);
    EXPECT_EQ(escrito(1.1 * 1.1), u"1,21"_s);
    EXPECT_EQ(escrito(1.0 / 3.0), u"0,333333333333333"_s);
    EXPECT_EQ(escrito(2.0 / 3.0), u"0,666666666666667"_s);
    EXPECT_EQ(escrito(100.0 / 3.0), u"33,3333333333333"_s);
    EXPECT_EQ(escrito(123456789.123456789), u"123456789,123457"_s);
    EXPECT_EQ(escrito(123456789012345), u"123456789012345"_s);
    EXPECT_EQ(escrito(0.123456789012345), u"0,123456789012345"_s);
    EXPECT_EQ(escrito(99999999999999.99), u"100000000000000"_s);
    EXPECT_EQ(escrito(9999999999999.99), u"9999999999999,99"_s);
}

TEST(NumeroATexto, ExponenteDesde1E15)
{
    EXPECT_EQ(escrito(999999999999999), u"999999999999999"_s);
    EXPECT_EQ(escrito(-999999999999999), u"-999999999999999"_s);
    EXPECT_EQ(escrito(1e15), u"1E+15"_s);
    EXPECT_EQ(escrito(-1e15), u"-1E+15"_s);
    EXPECT_EQ(escrito(1234567890123456), u"1,23456789012346E+15"_s);
    EXPECT_EQ(escrito(1.5e20), u"1,5E+20"_s);
    EXPECT_EQ(escrito(1e100), u"1E+100"_s);
    EXPECT_EQ(escrito(std::numeric_limits<double>::max()), u"1,79769313486232E+308"_s);
    EXPECT_EQ(aTexto(1.5e20, enUs()), u"1.5E+20"_s);
}

TEST(NumeroATexto, ElExponenteSeDecideTrasRedondearAQuinceCifras)
{
    EXPECT_EQ(escrito(999999999999999.9), u"1E+15"_s);
    EXPECT_EQ(escrito(999999999999999.375), u"999999999999999"_s);
    EXPECT_EQ(escrito(std::nextafter(1e-4, 0.0)), u"0,0001"_s);
}

TEST(NumeroATexto, ExponentePorDebajoDe1E4Negativo)
{
    EXPECT_EQ(escrito(0.0001), u"0,0001"_s);
    EXPECT_EQ(escrito(-0.00012), u"-0,00012"_s);
    EXPECT_EQ(escrito(0.000123456789012345), u"0,000123456789012345"_s);
    EXPECT_EQ(escrito(0.00009999), u"9,999E-05"_s);
    EXPECT_EQ(escrito(0.000015), u"1,5E-05"_s);
    EXPECT_EQ(escrito(-0.000015), u"-1,5E-05"_s);
    EXPECT_EQ(escrito(1e-5), u"1E-05"_s);
    EXPECT_EQ(escrito(1.4210854715202e-14), u"1,4210854715202E-14"_s);
    EXPECT_EQ(escrito(1e-100), u"1E-100"_s);
}

TEST(NumeroATexto, LosMenoresDeTodosTambienConQuinceCifras)
{
    EXPECT_EQ(escrito(std::numeric_limits<double>::denorm_min()), u"4,94065645841247E-324"_s);
    EXPECT_EQ(escrito(std::numeric_limits<double>::min()), u"2,2250738585072E-308"_s); // 2.22507385850720|14
}

TEST(NumeroATexto, EnterosDe32Bits)
{
    EXPECT_EQ(aTexto(0, es()), u"0"_s);
    EXPECT_EQ(aTexto(-70000, es()), u"-70000"_s);
    EXPECT_EQ(aTexto(std::numeric_limits<qint32>::min(), es()), u"-2147483648"_s);
    EXPECT_EQ(aTexto(std::numeric_limits<qint32>::max(), es()), u"2147483647"_s);
}

TEST(NumeroParaSql, SiemprePunto)
{
    EXPECT_EQ(numeroParaSql(1234.5, es()), u"1234.5"_s);
    EXPECT_EQ(numeroParaSql(1234.5, enUs()), u"1234.5"_s);
    EXPECT_EQ(numeroParaSql(-5.5, es()), u"-5.5"_s);
    EXPECT_EQ(numeroParaSql(2, es()), u"2"_s);
    EXPECT_EQ(numeroParaSql(-0.0, es()), u"0"_s);
    EXPECT_EQ(numeroParaSql(0.1 + 0.2, es()), u"0.3"_s);
    EXPECT_EQ(numeroParaSql(1.4210854715202e-14, es()), u"1.4210854715202E-14"_s);
    EXPECT_EQ(numeroParaSql(1e15, es()), u"1E+15"_s);
}

// ---------------------------------------------------------------- text to number, strict

TEST(TextoANumero, LoQueNoEsUnNumeroEsError13)
{
    for (const QString& texto :
         {u""_s,    u"   "_s, u"abc"_s,  u"12abc"_s, u"12 abc"_s, u"1,2,3"_s, u","_s,     u"-"_s,    u"+"_s,
          u"--5"_s, u"- 5"_s, u"5-"_s,   u"1E"_s,    u"1E+"_s,    u"E5"_s,    u"1E5,5"_s, u"0x10"_s, u"inf"_s,
          u"nan"_s, u"1 2"_s, u"12 €"_s, u"(5)"_s,   u"&H10"_s,   u"1D5"_s,   u"١٢"_s})
        EXPECT_EQ(errorAlLeer(texto), 13) << texto.toStdString();
}

TEST(TextoANumero, MarcaDeMilesFueraDeSuSitioEsError13)
{
    for (const QString& texto : {u"12.5"_s, u"1.23"_s, u"1.2345"_s, u"1234.567"_s, u".500"_s, u"0.500"_s, u"1.234."_s, u"1..234"_s,
                                 u"1,234.567"_s, u"1.234.56"_s, u"1 234"_s, u"12.345,6.7"_s})
        EXPECT_EQ(errorAlLeer(texto), 13) << texto.toStdString();
    for (const QString& texto : {u"12,5"_s, u"1.234,5"_s, u"0,500"_s})
        EXPECT_EQ(errorAlLeer(texto, enUs()), 13) << texto.toStdString();
}

TEST(TextoANumero, DemasiadoGrandeEsError6)
{
    EXPECT_EQ(errorAlLeer(u"1E309"_s), 6);
    EXPECT_EQ(errorAlLeer(u"-1E309"_s), 6);
    EXPECT_EQ(errorAlLeer(u"1E99999999999999999999"_s), 6);
    EXPECT_EQ(errorAlLeer(QString{310, u'9'}), 6);
}

TEST(TextoANumero, ElErrorNombraElTexto)
{
    try {
        static_cast<void>(aDoble(u"doce"_s, es()));
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.descripcion(), u"No coinciden los tipos.\n\"doce\" no es un número."_s);
    }
}

TEST(TextoANumero, ConLaMarcaDecimalRegional)
{
    EXPECT_EQ(aDoble(u"12,5"_s, es()), 12.5);
    EXPECT_EQ(aDoble(u"-1,05"_s, es()), -1.05);
    EXPECT_EQ(aDoble(u"+3"_s, es()), 3);
    EXPECT_EQ(aDoble(u"007"_s, es()), 7);
    EXPECT_EQ(aDoble(u",5"_s, es()), 0.5);
    EXPECT_EQ(aDoble(u"-,5"_s, es()), -0.5);
    EXPECT_EQ(aDoble(u"5,"_s, es()), 5);
    EXPECT_EQ(aDoble(u"12.5"_s, enUs()), 12.5);
}

TEST(TextoANumero, BlancosAlrededor)
{
    EXPECT_EQ(aDoble(u"  12,5"_s, es()), 12.5);
    EXPECT_EQ(aDoble(u"12,5 \t\n"_s, es()), 12.5);
    EXPECT_EQ(aDoble(u"\u00a0"
                     u"7\u00a0"_s,
                     es()),
              7);
}

TEST(TextoANumero, Exponente)
{
    EXPECT_EQ(aDoble(u"1E+15"_s, es()), 1e15);
    EXPECT_EQ(aDoble(u"1,5E-05"_s, es()), 1.5e-5);
    EXPECT_EQ(aDoble(u"2e3"_s, es()), 2000);
    EXPECT_EQ(aDoble(u"-2E03"_s, es()), -2000);
}

TEST(TextoANumero, GruposDeMilesEnSuSitio)
{
    EXPECT_EQ(aDoble(u"1.234"_s, es()), 1234);
    EXPECT_EQ(aDoble(u"1.234,5"_s, es()), 1234.5);
    EXPECT_EQ(aDoble(u"-12.345.678,25"_s, es()), -12345678.25);
    EXPECT_EQ(aDoble(u"123.456"_s, es()), 123456);
    EXPECT_EQ(aDoble(u"1,234.5"_s, enUs()), 1234.5);
}

TEST(TextoANumero, DondeLosMilesSeSeparanConBlancoValeCualquiera)
{
    const ConfiguracionRegional francia = prueba::regionalDe(u"fr_FR"_s);
    EXPECT_EQ(aDoble(u"1 234,5"_s, francia), 1234.5);
    EXPECT_EQ(aDoble(u"1\u00a0234,5"_s, francia), 1234.5);
    EXPECT_EQ(aDoble(u"1\u202f234,5"_s, francia), 1234.5);
    EXPECT_EQ(errorAlLeer(u"1 23"_s, francia), 13);
}

TEST(TextoANumero, DemasiadoPequenioEsCero)
{
    EXPECT_EQ(aDoble(u"1E-400"_s, es()), 0);
    EXPECT_EQ(aDoble(u"0E999"_s, es()), 0);
}

// ---------------------------------------------------------------- there and back

/// The number at 15 significant digits as the stream of the C++ library writes it: the same form, with a point.
std::string porLaBiblioteca(double numero)
{
    std::ostringstream salida;
    salida.imbue(std::locale::classic());
    salida << std::uppercase << std::setprecision(15) << numero;
    return salida.str();
}

double conQuinceCifras(double numero)
{
    return QByteArray::fromStdString(porLaBiblioteca(numero)).toDouble();
}

/// The same numbers on every run and with every library.
class Azar
{
public:
    quint64 operator()()
    {
        m_estado ^= m_estado << 13;
        m_estado ^= m_estado >> 7;
        m_estado ^= m_estado << 17;
        return m_estado;
    }

private:
    quint64 m_estado = 20240305;
};

/// Doubles of every size: random bits, amounts of money, quotients, few digits with a power of ten. Finite at 15 digits too.
std::vector<double> muchosNumeros()
{
    std::vector<double> numeros;
    Azar azar;
    for (int i = 0; i < 20000; ++i) {
        const auto cualquiera = std::bit_cast<double>(azar());
        if (std::abs(cualquiera) < 1.797e308)
            numeros.push_back(cualquiera);
        const double centimos = static_cast<double>(azar() % 2'000'000'001) - 1e9;
        numeros.push_back(centimos / 100);
        numeros.push_back(centimos / static_cast<double>(azar() % 1000 + 1));
        numeros.push_back(static_cast<double>(azar() % 10'000) * std::pow(10.0, static_cast<double>(azar() % 40) - 20));
    }
    return numeros;
}

TEST(IdaYVuelta, LoEscritoSeLeeIgualAQuinceCifras)
{
    for (const double numero : muchosNumeros()) {
        const double esperado = conQuinceCifras(numero);
        ASSERT_EQ(aDoble(escrito(numero), es()), esperado) << numero;
        ASSERT_EQ(aDoble(aTexto(numero, enUs()), enUs()), esperado) << numero;
        ASSERT_EQ(prefijoNumerico(numeroParaSql(numero, es())), esperado) << numero;
    }
}

TEST(IdaYVuelta, LasCifrasSonLasDeLaBiblioteca)
{
    for (const double numero : muchosNumeros())
        ASSERT_EQ(numeroParaSql(numero, es()).toStdString(), porLaBiblioteca(numero == 0 ? 0.0 : numero));
}

// ---------------------------------------------------------------- numeric prefix

TEST(PrefijoNumerico, SinPrefijoEsCero)
{
    for (const QStringView texto : {u"", u"abc", u".", u"-", u"-abc", u",5", u"E5", u"€ 5"})
        EXPECT_EQ(prefijoNumerico(texto), 0) << texto.toString().toStdString();
}

TEST(PrefijoNumerico, ElPrefijoMasLargoConPunto)
{
    EXPECT_EQ(prefijoNumerico(u"12abc"), 12);
    EXPECT_EQ(prefijoNumerico(u".5"), 0.5);
    EXPECT_EQ(prefijoNumerico(u"1,5"), 1);
    EXPECT_EQ(prefijoNumerico(u"1.5"), 1.5);
    EXPECT_EQ(prefijoNumerico(u"1.5.7"), 1.5);
    EXPECT_EQ(prefijoNumerico(u"1."), 1);
    EXPECT_EQ(prefijoNumerico(u"-3"), -3);
    EXPECT_EQ(prefijoNumerico(u"+3x"), 3);
    EXPECT_EQ(prefijoNumerico(u"-.5"), -0.5);
    EXPECT_EQ(prefijoNumerico(u"1e3x"), 1000);
    EXPECT_EQ(prefijoNumerico(u"1ex"), 1);
    EXPECT_EQ(prefijoNumerico(u"1e+x"), 1);
    EXPECT_EQ(prefijoNumerico(u"1E-2"), 0.01);
    EXPECT_EQ(prefijoNumerico(u"1.234.567"), 1.234);
    EXPECT_EQ(prefijoNumerico(u"12 34"), 12);
    EXPECT_EQ(prefijoNumerico(u"9:05"), 9);
}

TEST(PrefijoNumerico, SaltaLosBlancosDeDelante)
{
    EXPECT_EQ(prefijoNumerico(u"   42 "), 42);
    EXPECT_EQ(prefijoNumerico(u"\t-7"), -7);
}

TEST(PrefijoNumerico, NuncaFalla)
{
    EXPECT_EQ(prefijoNumerico(u"1e400"), std::numeric_limits<double>::max());
    EXPECT_EQ(prefijoNumerico(u"-1e400"), std::numeric_limits<double>::lowest());
    EXPECT_EQ(prefijoNumerico(u"1e-400"), 0);
}

} // namespace
} // namespace kestrane
