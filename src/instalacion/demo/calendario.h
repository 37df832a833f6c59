#pragma once

#include "instalacion/demo/azar.h"
#include "instalacion/demo/parametros.h"

#include <array>
#include <optional>
#include <vector>

namespace kestrane::demo {

/// Monday 1 to Sunday 7.
[[nodiscard]] constexpr int diaSemana(Fecha fecha)
{
    return (fecha.diaDeSerie() % 7 + 7 + 5) % 7 + 1;
}

/// How a day is told: the whole day, or a few sales that stand for the time before the shop's data begin.
enum class Detalle { Entero, Muestra };

struct DiaNegocio
{
    Fecha fecha;
    Detalle detalle = Detalle::Entero;
    bool conRarezas = false; // of the few sales one is of a rare kind
};

/// When a shop is open and how busy it is: weekdays, public holidays, seasons, growth, the August closing, and one bad month.
class Calendario
{
public:
    Calendario(const Parametros& parametros, const Sabor& datos);

    /// The days to tell, ascending; the last is today. Days on which every store is closed are in it too.
    [[nodiscard]] const std::vector<DiaNegocio>& dias() const { return m_dias; }
    [[nodiscard]] Fecha hoy() const { return m_hoy; }
    /// The first day that is told whole.
    [[nodiscard]] Fecha primerEntero() const { return m_primerEntero; }
    /// Days from the first to `fecha`.
    [[nodiscard]] int indice(Fecha fecha) const { return fecha.diaDeSerie() - m_dias.front().fecha.diaDeSerie(); }
    [[nodiscard]] int longitud() const { return indice(m_hoy) + 1; }

    /// True when the store of that number (from 0) opens. It opens today, whatever day that is.
    [[nodiscard]] bool abre(Fecha fecha, int tienda) const;
    /// The next day on which it opens, `fecha` included.
    [[nodiscard]] Fecha proximoAbierto(Fecha fecha, int tienda) const;
    /// Tickets against those of an average day.
    [[nodiscard]] double actividad(Fecha fecha) const;
    /// The month in which the street was dug up: four before today's.
    [[nodiscard]] int mesMalo() const { return (m_hoy.mes() + 7) % 12 + 1; }
    [[nodiscard]] bool esMesMalo(Fecha fecha) const;

    /// Seconds since midnight of so many tickets, ascending.
    [[nodiscard]] std::vector<int> horas(Fecha fecha, int tickets, Azar& azar) const;
    /// True when it is open from one minute of the day to another, without a break.
    [[nodiscard]] bool atiende(Fecha fecha, int desde, int hasta) const;
    /// The sales: weeks of great discounts in the shops.
    [[nodiscard]] bool hayRebajas(Fecha fecha) const;
    /// Minute of the first opening on that weekday.
    [[nodiscard]] int apertura(Fecha fecha) const;

private:
    [[nodiscard]] int diasEnteros(Tamano tamano) const;
    void anadeMuestra(Fecha primeroEntero);
    [[nodiscard]] const Horario& horario(Fecha fecha) const;
    [[nodiscard]] const Ruleta& minutos(Fecha fecha) const;

    const Sabor& m_sabor;
    Fecha m_hoy;
    Fecha m_primerEntero;
    bool m_todosLosDias = false; // of the time before, not only two a month
    std::vector<DiaNegocio> m_dias;
    std::array<Ruleta, 3> m_minutos; // working days, Saturday, Sunday
};

/// Easter Sunday of a year.
[[nodiscard]] Fecha domingoDePascua(int anio);

} // namespace kestrane::demo
