#include "platform/runtime/reloj.h"

#include <QDateTime>

namespace kestrane {

Fecha RelojSistema::ahora() const
{
    const QDateTime ahora = QDateTime::currentDateTime();
    const QDate dia = ahora.date();
    const QTime hora = ahora.time();
    return Fecha::deCalendario(dia.year(), dia.month(), dia.day(), hora.hour(), hora.minute(), hora.second()).value_or(Fecha{});
}

} // namespace kestrane
