#include "platform/database/sqlite/sqlite_fecha.h"

#include <charconv>
#include <cmath>

namespace kestrane::database::sqlite {

namespace {

void dosCifras(int numero, char* destino)
{
    destino[0] = static_cast<char>('0' + numero / 10);
    destino[1] = static_cast<char>('0' + numero % 10);
}

/// Reads whole numbers and the marks between them from the front of a text.
class Lector
{
public:
    explicit Lector(std::string_view texto) : m_texto{texto} {}

    bool numero(int& destino)
    {
        const char* const fin = m_texto.data() + m_texto.size();
        const auto [sigue, error] = std::from_chars(m_texto.data(), fin, destino);
        if (error != std::errc{} || destino < 0)
            return false;
        m_texto.remove_prefix(static_cast<size_t>(sigue - m_texto.data()));
        return true;
    }
    bool marca(std::string_view cualquiera)
    {
        if (m_texto.empty() || cualquiera.find(m_texto.front()) == std::string_view::npos)
            return false;
        m_texto.remove_prefix(1);
        return true;
    }
    void saltaCifras()
    {
        while (!m_texto.empty() && m_texto.front() >= '0' && m_texto.front() <= '9')
            m_texto.remove_prefix(1);
    }
    [[nodiscard]] bool fin() const { return m_texto.empty(); }

private:
    std::string_view m_texto;
};

/// "9:05", "09:05:00", "09:05:00.000", with nothing behind but a zone mark Z.
std::optional<int> leeHora(Lector& lector)
{
    int hora = 0;
    int minuto = 0;
    int segundo = 0;
    if (!lector.numero(hora) || !lector.marca(":") || !lector.numero(minuto))
        return std::nullopt;
    if (lector.marca(":") && !lector.numero(segundo))
        return std::nullopt;
    if (lector.marca(".,"))
        lector.saltaCifras();
    lector.marca("Z");
    if (!lector.fin() || hora > 23 || minuto > 59 || segundo > 59)
        return std::nullopt;
    return (hora * 60 + minuto) * 60 + segundo;
}

std::string_view sinBlancos(std::string_view texto)
{
    while (!texto.empty() && texto.front() == ' ')
        texto.remove_prefix(1);
    while (!texto.empty() && texto.back() == ' ')
        texto.remove_suffix(1);
    return texto;
}

} // namespace

int escribeFecha(Fecha fecha, char* destino)
{
    const Fecha::Calendario calendario = fecha.calendario();
    dosCifras(calendario.anio / 100, destino);
    dosCifras(calendario.anio % 100, destino + 2);
    destino[4] = destino[7] = '-';
    dosCifras(calendario.mes, destino + 5);
    dosCifras(calendario.dia, destino + 8);
    if (fecha.esMedianoche())
        return 10;
    destino[10] = ' ';
    destino[13] = destino[16] = ':';
    dosCifras(fecha.hora(), destino + 11);
    dosCifras(fecha.minuto(), destino + 14);
    dosCifras(fecha.segundo(), destino + 17);
    return AnchoFecha;
}

std::optional<Fecha> leeFecha(std::string_view texto)
{
    texto = sinBlancos(texto);
    Lector lector{texto};
    int anio = 0;
    int mes = 0;
    int dia = 0;
    if (!lector.numero(anio))
        return std::nullopt;
    if (!lector.marca("-/")) {
        Lector hora{texto};
        const auto segundo = leeHora(hora);
        return segundo ? std::optional{Fecha::deSerie(0, *segundo)} : std::nullopt;
    }
    if (!lector.numero(mes) || !lector.marca("-/") || !lector.numero(dia))
        return std::nullopt;
    const auto fecha = Fecha::deCalendario(anio, mes, dia);
    if (!fecha || lector.fin())
        return fecha;
    if (!lector.marca(" T"))
        return std::nullopt;
    const auto segundo = leeHora(lector);
    return segundo ? std::optional{Fecha::deSerie(fecha->diaDeSerie(), *segundo)} : std::nullopt;
}

std::optional<Fecha> leeFecha(double serie)
{
    const double dia = std::floor(serie);
    if (!(dia >= Fecha::PrimerDiaDeSerie && dia <= Fecha::UltimoDiaDeSerie))
        return std::nullopt;
    const auto segundo = static_cast<qint32>(std::lround((serie - dia) * Fecha::SegundosPorDia));
    if (segundo >= Fecha::SegundosPorDia)
        return Fecha::deSerie(static_cast<qint32>(dia) + 1, 0);
    return Fecha::deSerie(static_cast<qint32>(dia), segundo);
}

} // namespace kestrane::database::sqlite
