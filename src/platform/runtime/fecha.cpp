#include "platform/runtime/fecha.h"

#include <array>

namespace kestrane {

namespace {

// Proleptic Gregorian calendar in whole numbers. Years are counted from March, so that the leap day ends the year; an era is 400
// years. The origin of these counts is 1 March of year 0.
constexpr quint32 DiasPorEra = 146097;
constexpr qint32 DiaCeroDesdeElOrigen = 693899; // 30/12/1899

constexpr bool esBisiesto(int anio)
{
    return anio % 4 == 0 && (anio % 100 != 0 || anio % 400 == 0);
}

constexpr int diasDelMes(int anio, int mes)
{
    constexpr std::array dias{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return mes == 2 && esBisiesto(anio) ? 29 : dias[mes - 1];
}

constexpr bool existeElDia(int anio, int mes, int dia)
{
    if (anio < Fecha::PrimerAnio || anio > Fecha::UltimoAnio || mes < 1 || mes > 12)
        return false;
    return dia >= 1 && dia <= diasDelMes(anio, mes);
}

constexpr bool existeLaHora(int hora, int minuto, int segundo)
{
    return hora >= 0 && hora < 24 && minuto >= 0 && minuto < 60 && segundo >= 0 && segundo < 60;
}

constexpr qint32 serieDe(int anio, int mes, int dia)
{
    const int anioDesdeMarzo = mes <= 2 ? anio - 1 : anio;
    const int mesDesdeMarzo = mes <= 2 ? mes + 9 : mes - 3;
    const int enLaEra = anioDesdeMarzo % 400;
    const int enElAnio = (153 * mesDesdeMarzo + 2) / 5 + dia - 1;
    const int enDias = enLaEra * 365 + enLaEra / 4 - enLaEra / 100 + enElAnio;
    return anioDesdeMarzo / 400 * static_cast<qint32>(DiasPorEra) + enDias - DiaCeroDesdeElOrigen;
}

static_assert(serieDe(1899, 12, 30) == 0);
static_assert(serieDe(Fecha::PrimerAnio, 1, 1) == Fecha::PrimerDiaDeSerie);
static_assert(serieDe(Fecha::UltimoAnio, 12, 31) == Fecha::UltimoDiaDeSerie);

} // namespace

std::optional<Fecha> Fecha::deCalendario(int anio, int mes, int dia, int hora, int minuto, int segundo)
{
    if (!existeElDia(anio, mes, dia) || !existeLaHora(hora, minuto, segundo))
        return std::nullopt;
    return Fecha{serieDe(anio, mes, dia), (hora * 60 + minuto) * 60 + segundo};
}

Fecha::Calendario Fecha::calendario() const
{
    const auto desdeElOrigen = static_cast<quint32>(m_dia + DiaCeroDesdeElOrigen);
    const quint32 enDias = desdeElOrigen % DiasPorEra;
    const quint32 enLaEra = (enDias - enDias / 1460 + enDias / 36524 - enDias / 146096) / 365;
    const quint32 enElAnio = enDias - (365 * enLaEra + enLaEra / 4 - enLaEra / 100);
    const quint32 mesDesdeMarzo = (5 * enElAnio + 2) / 153;
    const int dia = static_cast<int>(enElAnio - (153 * mesDesdeMarzo + 2) / 5 + 1);
    const int mes = static_cast<int>(mesDesdeMarzo < 10 ? mesDesdeMarzo + 3 : mesDesdeMarzo - 9);
    const int anioDesdeMarzo = static_cast<int>(enLaEra + desdeElOrigen / DiasPorEra * 400);
    return {mes <= 2 ? anioDesdeMarzo + 1 : anioDesdeMarzo, mes, dia};
}

} // namespace kestrane
