#include "pipeline/filtros/utilidades.h"

namespace kestrane::Utilidades {

using namespace Qt::StringLiterals;

QString ComprobarFechas(Fecha desde, Fecha hasta)
{
    if (hasta.sinHora() < desde.sinHora())
        return u"La fecha hasta seleccionada es anterior a la fecha desde."_s;
    return {};
}

} // namespace kestrane::Utilidades
