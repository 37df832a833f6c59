#pragma once

#include <QtGlobal>

#include <compare>
#include <optional>

namespace kestrane {

/// A calendar day and a time of day, without zone and without leap seconds; resolution one second.
///
/// Days are counted from 30/12/1899, the zero date, which is what a default-made Fecha holds. A bare time of day is a time on that
/// day. Years run from 100 to 9999. The value is eight bytes and compares by one integer: it is what recordsets hand out by the
/// hundred thousand, where QDateTime (zone, clock changes) would be wrong and slow; QDate appears only at widgets.
class Fecha
{
public:
    static constexpr int PrimerAnio = 100;
    static constexpr int UltimoAnio = 9999;
    static constexpr qint32 SegundosPorDia = 86400;
    static constexpr qint32 PrimerDiaDeSerie = -657434; ///< 01/01/0100
    static constexpr qint32 UltimoDiaDeSerie = 2958465; ///< 31/12/9999

    constexpr Fecha() = default;

    /// The given day and time, or nothing when there is no such day (29/02/2023) or time (24:00:00), or the year is out of range.
    [[nodiscard]] static std::optional<Fecha> deCalendario(int anio, int mes, int dia, int hora = 0, int minuto = 0,
                                                           int segundo = 0);
    /// `dia` days after 30/12/1899, `segundo` seconds after its midnight. The caller vouches for the ranges.
    [[nodiscard]] static constexpr Fecha deSerie(qint32 dia, qint32 segundo) { return Fecha{dia, segundo}; }

    /// Year, month (1 to 12) and day of the month (1 to 31).
    struct Calendario
    {
        int anio = 0;
        int mes = 0;
        int dia = 0;

        friend constexpr bool operator==(const Calendario&, const Calendario&) = default;
    };

    /// The three at once, for whoever needs more than one of them.
    [[nodiscard]] Calendario calendario() const;
    [[nodiscard]] int anio() const { return calendario().anio; }
    [[nodiscard]] int mes() const { return calendario().mes; }
    [[nodiscard]] int dia() const { return calendario().dia; }
    [[nodiscard]] int hora() const { return m_segundo / 3600; }
    [[nodiscard]] int minuto() const { return m_segundo / 60 % 60; }
    [[nodiscard]] int segundo() const { return m_segundo % 60; }

    /// Days since 30/12/1899, negative before it.
    [[nodiscard]] constexpr qint32 diaDeSerie() const { return m_dia; }
    /// Seconds since midnight.
    [[nodiscard]] constexpr qint32 segundoDelDia() const { return m_segundo; }
    [[nodiscard]] constexpr bool esMedianoche() const { return m_segundo == 0; }
    /// True on 30/12/1899, the day that stands for "no day, a time alone".
    [[nodiscard]] constexpr bool esDiaCero() const { return m_dia == 0; }

    [[nodiscard]] constexpr Fecha sinHora() const { return Fecha{m_dia, 0}; }
    /// The same time of day `dias` days later (earlier when negative).
    [[nodiscard]] constexpr Fecha masDias(qint32 dias) const { return Fecha{m_dia + dias, m_segundo}; }

    friend constexpr auto operator<=>(const Fecha&, const Fecha&) = default;

private:
    constexpr Fecha(qint32 dia, qint32 segundo) : m_dia{dia}, m_segundo{segundo} {}

    qint32 m_dia = 0;
    qint32 m_segundo = 0;
};

} // namespace kestrane
