#include "platform/runtime/conversiones.h"
#include "platform/runtime/error_ejecucion.h"
#include "platform/runtime/lector_numero.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <string_view>

namespace kestrane {

using namespace Qt::StringLiterals;

// ---------------------------------------------------------------- writing

namespace {

constexpr int CifrasSignificativas = 15;
constexpr double DesdeExponente = 1e15;
constexpr int ExponenteMinimo = -4; // below it the exponent form

/// A finite number other than 0: the digits without zeros at the end, the first one before the decimal mark, times 10^exponente.
struct Decimal
{
    std::array<char, CifrasSignificativas> cifras{};
    int cuantas = 0;
    int exponente = 0;
    bool negativo = false;
};

/// The characters of a number, with "." where the decimal mark goes. The longest is "-0.000123456789012345".
class Letras
{
public:
    void pon(char letra) { m_letras[m_cuantas++] = letra; }
    void pon(std::string_view letras)
    {
        std::copy(letras.begin(), letras.end(), m_letras.begin() + m_cuantas);
        m_cuantas += static_cast<int>(letras.size());
    }
    void ponCeros(int cuantos)
    {
        std::fill_n(m_letras.begin() + m_cuantas, cuantos, '0');
        m_cuantas += cuantos;
    }
    void ponMarca()
    {
        m_marca = m_cuantas;
        pon('.');
    }
    void ponEntero(qint64 entero)
    {
        const auto fin = std::to_chars(m_letras.data() + m_cuantas, m_letras.data() + m_letras.size(), entero);
        m_cuantas = static_cast<int>(fin.ptr - m_letras.data());
    }
    [[nodiscard]] QString texto(QChar marca) const
    {
        QString texto = QString::fromLatin1(m_letras.data(), m_cuantas);
        if (m_marca >= 0 && marca != u'.')
            texto[m_marca] = marca;
        return texto;
    }

private:
    std::array<char, 32> m_letras{};
    int m_cuantas = 0;
    int m_marca = -1;
};

/// Takes the "d.ddde+xx" of std::to_chars apart; false when there are more digits than `Decimal` holds.
bool lee(std::string_view cientifico, Decimal& decimal)
{
    const size_t e = cientifico.find('e');
    decimal.cuantas = 0;
    for (const char letra : cientifico.substr(0, e)) {
        if (letra == '.')
            continue;
        if (decimal.cuantas == CifrasSignificativas)
            return false;
        decimal.cifras[decimal.cuantas++] = letra;
    }
    const size_t signo = cientifico[e + 1] == '+' ? 1 : 0; // from_chars takes no "+"
    std::from_chars(cientifico.data() + e + 1 + signo, cientifico.data() + cientifico.size(), decimal.exponente);
    return true;
}

Decimal aDecimal(double numero)
{
    Decimal decimal;
    decimal.negativo = numero < 0;
    const double positivo = std::abs(numero);
    std::array<char, 40> letras{};
    char* const fin = letras.data() + letras.size();
    // The shortest text that reads back the same is the quicker one, and where it has at most 15 digits it is also the number
    // rounded to 15. That does not hold for subnormal numbers.
    auto escrito = std::to_chars(letras.data(), fin, positivo, std::chars_format::scientific);
    if (positivo < DBL_MIN || !lee({letras.data(), static_cast<size_t>(escrito.ptr - letras.data())}, decimal)) {
        escrito = std::to_chars(letras.data(), fin, positivo, std::chars_format::scientific, CifrasSignificativas - 1);
        lee({letras.data(), static_cast<size_t>(escrito.ptr - letras.data())}, decimal);
    }
    while (decimal.cuantas > 1 && decimal.cifras[decimal.cuantas - 1] == '0')
        --decimal.cuantas;
    return decimal;
}

void escribeConExponente(const Decimal& decimal, Letras& letras)
{
    letras.pon(decimal.cifras.front());
    if (decimal.cuantas > 1) {
        letras.ponMarca();
        letras.pon({decimal.cifras.data() + 1, static_cast<size_t>(decimal.cuantas - 1)});
    }
    letras.pon(decimal.exponente < 0 ? "E-" : "E+");
    if (std::abs(decimal.exponente) < 10)
        letras.pon('0');
    letras.ponEntero(std::abs(decimal.exponente));
}

void escribeSinExponente(const Decimal& decimal, Letras& letras)
{
    const std::string_view cifras{decimal.cifras.data(), static_cast<size_t>(decimal.cuantas)};
    if (decimal.exponente < 0) {
        letras.pon('0');
        letras.ponMarca();
        letras.ponCeros(-decimal.exponente - 1);
        letras.pon(cifras);
        return;
    }
    const size_t enteras = static_cast<size_t>(decimal.exponente) + 1;
    letras.pon(cifras.substr(0, enteras));
    if (cifras.size() <= enteras) {
        letras.ponCeros(static_cast<int>(enteras - cifras.size()));
        return;
    }
    letras.ponMarca();
    letras.pon(cifras.substr(enteras));
}

QString escribe(double numero, QChar marca)
{
    if (!std::isfinite(numero))
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    Letras letras;
    if (std::abs(numero) < DesdeExponente && numero == std::trunc(numero)) {
        letras.ponEntero(static_cast<qint64>(numero));
        return letras.texto(marca);
    }
    const Decimal decimal = aDecimal(numero);
    if (decimal.negativo)
        letras.pon('-');
    if (decimal.exponente >= CifrasSignificativas || decimal.exponente < ExponenteMinimo)
        escribeConExponente(decimal, letras);
    else
        escribeSinExponente(decimal, letras);
    return letras.texto(marca);
}

} // namespace

QString aTexto(double numero, const ConfiguracionRegional& regional)
{
    return escribe(numero, regional.marcaDecimal);
}

QString aTexto(qint32 numero, const ConfiguracionRegional&)
{
    Letras letras;
    letras.ponEntero(numero);
    return letras.texto(u'.');
}

QString numeroParaSql(double numero, const ConfiguracionRegional& regional)
{
    return escribe(numero, regional.marcaDecimal == u',' ? QChar{u'.'} : regional.marcaDecimal);
}

// ---------------------------------------------------------------- reading

double aDoble(QStringView texto, const ConfiguracionRegional& regional)
{
    LectorNumero lector{texto.trimmed(), regional.marcaDecimal, regional.marcaMiles};
    if (!lector.lee() || !lector.alFinal())
        throw ErrorEjecucion{ErrorEjecucion::TiposNoCoinciden}.conContexto(u"\"%1\" no es un número."_s.arg(texto.left(60)));
    const double numero = lector.numero();
    if (std::isinf(numero))
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    return numero;
}

double prefijoNumerico(QStringView texto)
{
    LectorNumero lector{texto.trimmed(), u'.', LectorNumero::SinMiles};
    if (!lector.lee())
        return 0;
    return std::clamp(lector.numero(), -DBL_MAX, DBL_MAX);
}

} // namespace kestrane
