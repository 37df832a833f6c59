#include "platform/jet/lectura_literales.h"

#include "platform/jet/caracteres.h"

#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace kestrane::jet {

namespace {

bool esDigito(const char16_t* p, const char16_t* fin)
{
    return p < fin && tieneRasgo(*p, Digito);
}

/// Powers of ten that a double holds exactly: up to these, one division rounds correctly.
constexpr std::array<double, 23> PotenciasExactas = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                     1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int DigitosQueCaben = 18;
constexpr quint64 EnteroExactoMaximo = quint64{1} << 53;

/// Digits read into one integer while they fit.
struct Digitos
{
    quint64 valor = 0;
    int cuantos = 0;

    const char16_t* lee(const char16_t* p, const char16_t* fin)
    {
        for (; esDigito(p, fin); ++p) {
            if (cuantos < DigitosQueCaben)
                valor = valor * 10 + static_cast<quint64>(*p - u'0');
            ++cuantos;
        }
        return p;
    }
};

/// Behind an exponent that begins here, or `p` itself: a word glued to a number begins with the same letter.
const char16_t* trasExponente(const char16_t* p, const char16_t* fin)
{
    if (p >= fin || (*p != u'e' && *p != u'E'))
        return p;
    const char16_t* q = p + 1;
    if (q < fin && (*q == u'+' || *q == u'-'))
        ++q;
    if (!esDigito(q, fin))
        return p;
    while (esDigito(q, fin))
        ++q;
    return q;
}

/// Numbers that are too long for the integer path. One too small for a double is 0.
NumeroLeido leeNumeroLento(const char16_t* desde, const char16_t* fin)
{
    const std::string texto(desde, fin);
    NumeroLeido leido{.fin = fin};
    const auto resultado = std::from_chars(texto.data(), texto.data() + texto.size(), leido.valor);
    if (resultado.ec == std::errc::result_out_of_range)
        leido.valor = 0;
    const bool negativo = texto.find("e-") != std::string::npos || texto.find("E-") != std::string::npos;
    leido.valido = resultado.ec == std::errc{} || negativo;
    return leido;
}

/// Reads one or two digits; -1 when there is none or a third follows.
int leeDosDigitos(const char16_t*& p, const char16_t* fin)
{
    Digitos digitos;
    p = digitos.lee(p, fin);
    return digitos.cuantos == 1 || digitos.cuantos == 2 ? static_cast<int>(digitos.valor) : -1;
}

bool salta(const char16_t*& p, const char16_t* fin, char16_t esperado)
{
    if (p >= fin || *p != esperado)
        return false;
    ++p;
    return true;
}

void saltaBlancos(const char16_t*& p, const char16_t* fin)
{
    while (p < fin && tieneRasgo(*p, Blanco))
        ++p;
}

struct Hora
{
    int hora = 0;
    int minuto = 0;
    int segundo = 0;
};

/// "hh:mm[:ss]"; a failed part leaves -1, which no time of day has.
Hora leeHora(const char16_t*& p, const char16_t* fin)
{
    Hora hora;
    hora.hora = leeDosDigitos(p, fin);
    hora.minuto = salta(p, fin, u':') ? leeDosDigitos(p, fin) : -1;
    if (salta(p, fin, u':'))
        hora.segundo = leeDosDigitos(p, fin);
    return hora;
}

/// What stands between the marks.
std::optional<Fecha> leeContenidoDeFecha(const char16_t* p, const char16_t* fin)
{
    saltaBlancos(p, fin);
    const int mes = leeDosDigitos(p, fin);
    const bool primeraBarra = salta(p, fin, u'/');
    const int dia = leeDosDigitos(p, fin);
    const bool segundaBarra = salta(p, fin, u'/');
    Digitos anio;
    p = anio.lee(p, fin);
    if (!primeraBarra || !segundaBarra || anio.cuantos != 4)
        return std::nullopt;
    const char16_t* trasDia = p;
    saltaBlancos(p, fin);
    Hora hora;
    if (p < fin && p > trasDia)
        hora = leeHora(p, fin);
    saltaBlancos(p, fin);
    if (p != fin)
        return std::nullopt;
    return Fecha::deCalendario(static_cast<int>(anio.valor), mes, dia, hora.hora, hora.minuto, hora.segundo);
}

} // namespace

NumeroLeido leeNumero(const char16_t* desde, const char16_t* fin)
{
    Digitos digitos;
    const char16_t* p = digitos.lee(desde, fin);
    const int enteros = digitos.cuantos;
    if (p < fin && *p == u'.' && esDigito(p + 1, fin))
        p = digitos.lee(p + 1, fin);
    const int decimales = digitos.cuantos - enteros;
    const char16_t* trasTodo = trasExponente(p, fin);
    if (trasTodo != p || digitos.cuantos > DigitosQueCaben || digitos.valor > EnteroExactoMaximo)
        return leeNumeroLento(desde, trasTodo);

    const auto mantisa = static_cast<double>(digitos.valor);
    if (decimales > 0)
        return {.fin = p, .valor = mantisa / PotenciasExactas[static_cast<size_t>(decimales)], .entero = false, .valido = true};
    return {.fin = p, .valor = mantisa, .entero = mantisa <= std::numeric_limits<qint32>::max(), .valido = true};
}

TextoLeido leeTexto(const char16_t* desde, const char16_t* fin)
{
    TextoLeido leido;
    const char16_t* contenido = desde + 1;
    for (const char16_t* p = contenido; p < fin; ++p) {
        if (*p != u'\'')
            continue;
        if (p + 1 < fin && p[1] == u'\'') {
            leido.comillasDobladas = true;
            ++p;
            continue;
        }
        leido.fin = p + 1;
        leido.contenido = QStringView(contenido, p);
        return leido;
    }
    return leido;
}

QString sinComillasDobladas(QStringView contenido)
{
    return contenido.toString().replace(QStringLiteral("''"), QStringLiteral("'"));
}

FechaLeida leeFecha(const char16_t* desde, const char16_t* fin)
{
    FechaLeida leida;
    const char16_t* cierre = desde + 1;
    while (cierre < fin && *cierre != u'#')
        ++cierre;
    if (cierre == fin)
        return leida;
    leida.fin = cierre + 1;
    if (const auto fecha = leeContenidoDeFecha(desde + 1, cierre)) {
        leida.valor = *fecha;
        leida.valida = true;
    }
    return leida;
}

} // namespace kestrane::jet
