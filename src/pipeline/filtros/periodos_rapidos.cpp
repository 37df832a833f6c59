#include "pipeline/filtros/periodos_rapidos.h"

namespace kestrane {

namespace {

constexpr int DiasPorSemana = 7;

Fecha primeroDeMes(Fecha dia)
{
    return dia.masDias(1 - dia.dia());
}

/// Days since the last Monday: the zero date, 30/12/1899, was a Saturday.
int diasDesdeLunes(Fecha dia)
{
    constexpr int SabadoDesdeLunes = 5;
    return ((dia.diaDeSerie() + SabadoDesdeLunes) % DiasPorSemana + DiasPorSemana) % DiasPorSemana;
}

constexpr PeriodoRapido Periodos[] = {
    {u"Hoy",
     [](Fecha hoy) {
         return Periodo{hoy, hoy};
     }},
    {u"Ayer",
     [](Fecha hoy) {
         return Periodo{hoy.masDias(-1), hoy.masDias(-1)};
     }},
    {u"Esta semana",
     [](Fecha hoy) {
         return Periodo{hoy.masDias(-diasDesdeLunes(hoy)), hoy};
     }},
    {u"Este mes",
     [](Fecha hoy) {
         return Periodo{primeroDeMes(hoy), hoy};
     }},
    {u"Mes anterior",
     [](Fecha hoy) {
         const Fecha ultimo = primeroDeMes(hoy).masDias(-1);
         return Periodo{primeroDeMes(ultimo), ultimo};
     }},
    {u"Este año",
     [](Fecha hoy) {
         return Periodo{Fecha::deCalendario(hoy.anio(), 1, 1).value_or(hoy), hoy};
     }},
};

} // namespace

std::span<const PeriodoRapido> periodosRapidos()
{
    return Periodos;
}

} // namespace kestrane
