#include "platform/runtime/lector_numero.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <string_view>

namespace kestrane {

namespace {

bool esCifra(QChar signo)
{
    return signo >= u'0' && signo <= u'9';
}

/// The whole number behind the "e" of a number's spelling; one too long to be read counts as very large.
qint64 exponenteDe(std::string_view letras, size_t e)
{
    if (e == letras.size())
        return 0;
    qint64 exponente = 0;
    const auto leido = std::from_chars(letras.data() + e + 2, letras.data() + letras.size(), exponente);
    if (leido.ec != std::errc{})
        exponente = INT_MAX;
    return letras[e + 1] == '-' ? -exponente : exponente;
}

} // namespace

bool LectorNumero::lee()
{
    leeSigno();
    const int enteras = leeEnteras();
    const int decimales = leeDecimales();
    if (enteras + decimales == 0)
        return false;
    leeExponente();
    return true;
}

void LectorNumero::leeSigno()
{
    if (signo() == u'-')
        m_letras.append('-');
    if (signo() == u'-' || signo() == u'+')
        ++m_lugar;
}

int LectorNumero::leeCifras()
{
    const qsizetype desde = m_lugar;
    for (; esCifra(signo()); ++m_lugar)
        m_letras.append(static_cast<char>(signo().unicode()));
    return static_cast<int>(m_lugar - desde);
}

int LectorNumero::leeEnteras()
{
    const bool empiezaPorCero = signo() == u'0';
    int cifras = leeCifras();
    if (cifras == 0 || cifras > 3 || empiezaPorCero)
        return cifras;
    while (sigueGrupo()) {
        ++m_lugar;
        cifras += leeCifras();
    }
    return cifras;
}

/// Where thousands are parted by a blank, any blank that a keyboard or another program puts there will do.
bool LectorNumero::esMarcaDeMiles(QChar signo) const
{
    return m_marcaMiles != SinMiles && (signo == m_marcaMiles || (signo.isSpace() && m_marcaMiles.isSpace()));
}

bool LectorNumero::sigueGrupo() const
{
    return esMarcaDeMiles(signo()) && esCifra(signo(1)) && esCifra(signo(2)) && esCifra(signo(3)) && !esCifra(signo(4));
}

int LectorNumero::leeDecimales()
{
    if (signo() != m_marcaDecimal)
        return 0;
    ++m_lugar;
    m_letras.append('.');
    return leeCifras();
}

void LectorNumero::leeExponente()
{
    if (signo() != u'E' && signo() != u'e')
        return;
    const bool conSigno = signo(1) == u'+' || signo(1) == u'-';
    if (!esCifra(signo(conSigno ? 2 : 1)))
        return;
    m_letras.append('e');
    m_letras.append(signo(1) == u'-' ? '-' : '+');
    m_lugar += conSigno ? 2 : 1;
    leeCifras();
}

double LectorNumero::numero() const
{
    double numero = 0;
    const auto leido = std::from_chars(m_letras.begin(), m_letras.end(), numero);
    if (leido.ec == std::errc{})
        return numero;
    const double tamanio = esEnorme() ? HUGE_VAL : 0.0;
    return m_letras.front() == '-' ? -tamanio : tamanio;
}

/// Tells the two ways apart in which a number lies outside a double's range: its power of ten is positive when it is too large.
bool LectorNumero::esEnorme() const
{
    const std::string_view letras{m_letras.data(), static_cast<size_t>(m_letras.size())};
    const size_t e = std::min(letras.find('e'), letras.size());
    const size_t marca = std::min(letras.find('.'), e);
    const size_t primera = letras.find_first_of("123456789");
    const qint64 ordenMantisa = static_cast<qint64>(marca) - static_cast<qint64>(primera);
    return ordenMantisa + exponenteDe(letras, e) > 0;
}

} // namespace kestrane
