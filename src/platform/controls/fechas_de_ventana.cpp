#include "platform/controls/fechas_de_ventana.h"

namespace kestrane {

QDate diaDe(Fecha fecha)
{
    const Fecha::Calendario dia = fecha.calendario();
    return {dia.anio, dia.mes, dia.dia};
}

Fecha fechaDe(QDate dia)
{
    return Fecha::deCalendario(dia.year(), dia.month(), dia.day()).value_or(Fecha{});
}

} // namespace kestrane
