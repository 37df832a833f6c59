#include "instalacion/demo/calendario.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr int MinutosPorDia = 24 * 60;
constexpr int Sabado = 6;
constexpr int Domingo = 7;
constexpr int MinutosDeCierre = 6; // the last customer leaves a little after closing
constexpr int DiasDeMuestra = 400;

struct DiaDelAnio
{
    int mes;
    int dia;
};

/// Of the country and of Valencia.
constexpr DiaDelAnio fiestas[] = {{1, 1},  {1, 6},   {1, 22}, {3, 19}, {5, 1},  {6, 24}, {8, 15},
                                  {10, 9}, {10, 12}, {11, 1}, {12, 6}, {12, 8}, {12, 25}};

/// Weeks in which goods sell better than their month.
struct Campana
{
    int mes;
    int desde;
    int hasta;
    int porCiento;
};

constexpr Campana campanas[] = {{1, 2, 5, 150}, {2, 10, 14, 120}, {5, 1, 6, 115}, {11, 24, 30, 140}, {12, 15, 24, 135}};

bool esFiesta(Fecha fecha)
{
    const auto igual = [fecha](const DiaDelAnio& fiesta) { return fiesta.mes == fecha.mes() && fiesta.dia == fecha.dia(); };
    const Fecha pascua = domingoDePascua(fecha.anio());
    return std::ranges::any_of(fiestas, igual) || fecha == pascua.masDias(-2) || fecha == pascua.masDias(1);
}

Ruleta ruletaDeMinutos(const Horario& horario, const std::array<int, 24>& pesos)
{
    std::vector<int> minutos(MinutosPorDia, 0);
    for (const Franja& franja : horario) {
        for (int minuto = franja.desde; minuto < franja.hasta; ++minuto)
            minutos[static_cast<std::size_t>(minuto)] = std::max(pesos[static_cast<std::size_t>(minuto / 60)], 1) * 10;
        for (int minuto = franja.hasta; franja.desde < franja.hasta && minuto < franja.hasta + MinutosDeCierre; ++minuto)
            minutos[static_cast<std::size_t>(minuto)] = 60;
    }
    return Ruleta{minutos};
}

bool estaAbierto(const Horario& horario)
{
    return horario[0].desde < horario[0].hasta;
}

} // namespace

Fecha domingoDePascua(int anio)
{
    // The Gregorian rule in its anonymous form.
    const int a = anio % 19;
    const int b = anio / 100;
    const int c = anio % 100;
    const int h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
    const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int suma = h + l - 7 * m + 114;
    return Fecha::deCalendario(anio, suma / 31, suma % 31 + 1).value_or(Fecha{}); // a day that every year has
}

Calendario::Calendario(const Parametros& parametros, const Sabor& datos)
    : m_sabor{datos}
    , m_hoy{parametros.hoy}
    , m_primerEntero{parametros.hoy.masDias(1 - diasEnteros(parametros.tamano))}
    , m_todosLosDias{parametros.tamano == Tamano::Mes}
    , m_minutos{ruletaDeMinutos(datos.ritmo.laborable, datos.ritmo.horas), ruletaDeMinutos(datos.ritmo.sabado, datos.ritmo.horas),
                ruletaDeMinutos(datos.ritmo.domingo, datos.ritmo.horas)}
{
    anadeMuestra(m_primerEntero);
    for (Fecha fecha = m_primerEntero; fecha <= m_hoy; fecha = fecha.masDias(1))
        m_dias.push_back({fecha, Detalle::Entero});
}

int Calendario::diasEnteros(Tamano tamano) const
{
    switch (tamano) {
    case Tamano::Dia:
        return 1;
    case Tamano::Mes:
        return 31;
    case Tamano::Anio:
        return 366;
    case Tamano::Cadena:
        return m_sabor.ritmo.diasCadena;
    }
    return 1;
}

void Calendario::anadeMuestra(Fecha primeroEntero)
{
    for (int dias = DiasDeMuestra; dias > 0; --dias) {
        const Fecha fecha = m_hoy.masDias(-dias);
        const bool senalado = fecha.dia() == 9 || fecha.dia() == 22;
        if (fecha < primeroEntero && m_todosLosDias)
            m_dias.push_back({fecha, Detalle::Muestra, senalado});
        else if (fecha < primeroEntero && senalado)
            m_dias.push_back({proximoAbierto(fecha, 0), Detalle::Muestra, true});
    }
    std::erase_if(m_dias, [primeroEntero](const DiaNegocio& dia) { return dia.fecha >= primeroEntero; });
}

const Horario& Calendario::horario(Fecha fecha) const
{
    const int dia = diaSemana(fecha);
    if (dia == Domingo)
        return m_sabor.ritmo.domingo;
    return dia == Sabado ? m_sabor.ritmo.sabado : m_sabor.ritmo.laborable;
}

const Ruleta& Calendario::minutos(Fecha fecha) const
{
    const int dia = diaSemana(fecha);
    const Ruleta& suya = m_minutos[dia == Domingo ? 2 : dia == Sabado ? 1 : 0];
    return suya.vacia() ? m_minutos[0] : suya; // today is told even when it is a Sunday
}

bool Calendario::abre(Fecha fecha, int tienda) const
{
    if (fecha == m_hoy)
        return true;
    if (!estaAbierto(horario(fecha)) || esFiesta(fecha))
        return false;
    const int primero = 5 + tienda % 2 * 9; // stores take turns
    return fecha.mes() != 8 || fecha.dia() < primero || fecha.dia() >= primero + m_sabor.ritmo.vacaciones;
}

Fecha Calendario::proximoAbierto(Fecha fecha, int tienda) const
{
    while (!abre(fecha, tienda))
        fecha = fecha.masDias(1);
    return fecha;
}

bool Calendario::esMesMalo(Fecha fecha) const
{
    const int meses = (m_hoy.anio() - fecha.anio()) * 12 + m_hoy.mes() - fecha.mes();
    return meses == 4;
}

double Calendario::actividad(Fecha fecha) const
{
    const Ritmo& ritmo = m_sabor.ritmo;
    const int porDia = std::max(ritmo.semana[static_cast<std::size_t>(diaSemana(fecha) - 1)], 40);
    double factor = porDia * 0.01 * ritmo.meses[static_cast<std::size_t>(fecha.mes() - 1)] * 0.01;
    if (esMesMalo(fecha))
        factor *= 0.5;
    if (m_sabor.oficio == Oficio::Comercio || m_sabor.oficio == Oficio::TallaColor) {
        for (const Campana& campana : campanas) {
            if (campana.mes == fecha.mes() && campana.desde <= fecha.dia() && fecha.dia() <= campana.hasta)
                factor *= campana.porCiento * 0.01;
        }
    }
    if (m_sabor.tipo == TipoTienda::Panaderia && fecha.mes() == 1 && fecha.dia() == 5)
        factor *= 2.2; // everybody eats roscón the next morning
    const int diasAtras = m_hoy.diaDeSerie() - fecha.diaDeSerie();
    return factor * (1.03 - 0.06 * diasAtras / 365.0);
}

std::vector<int> Calendario::horas(Fecha fecha, int tickets, Azar& azar) const
{
    const Ruleta& ruleta = minutos(fecha);
    std::vector<int> resultado(static_cast<std::size_t>(tickets));
    std::ranges::generate(resultado, [&] { return ruleta.gira(azar) * 60 + azar.hasta(60); });
    std::ranges::sort(resultado);
    return resultado;
}

bool Calendario::atiende(Fecha fecha, int desde, int hasta) const
{
    const Horario& suyo = estaAbierto(horario(fecha)) ? horario(fecha) : m_sabor.ritmo.laborable;
    return std::ranges::any_of(suyo, [=](const Franja& franja) { return franja.desde <= desde && hasta <= franja.hasta; });
}

bool Calendario::hayRebajas(Fecha fecha) const
{
    const bool ropa = m_sabor.oficio == Oficio::Comercio || m_sabor.oficio == Oficio::TallaColor;
    const bool invierno = (fecha.mes() == 1 && fecha.dia() >= 7) || fecha.mes() == 2;
    return ropa && (invierno || fecha.mes() == 7 || (fecha.mes() == 8 && fecha.dia() <= 20));
}

int Calendario::apertura(Fecha fecha) const
{
    const Horario& suyo = horario(fecha);
    return estaAbierto(suyo) ? suyo[0].desde : m_sabor.ritmo.laborable[0].desde;
}

} // namespace kestrane::demo
