#include "platform/report/layout/error_layout.h"

#include "platform/runtime/error_ejecucion.h"

namespace kestrane::report {

QString describe(const LugarLayout& lugar)
{
    return lugar.linea > 0 ? QStringLiteral("%1, línea %2").arg(lugar.fichero).arg(lugar.linea) : lugar.fichero;
}

QString trozo(QStringView texto, qsizetype desde, qsizetype cuantas)
{
    const auto partida = [&](qsizetype lugar) {
        return lugar > 0 && lugar < texto.size() && texto[lugar - 1].isHighSurrogate() && texto[lugar].isLowSurrogate();
    };
    const qsizetype primera = partida(desde) ? desde - 1 : desde;
    const qsizetype hasta = desde + cuantas;
    return texto.mid(primera, (partida(hasta) ? hasta + 1 : hasta) - primera).toString();
}

void fallaLayout(const LugarLayout& lugar, const QString& que)
{
    throw ErrorEjecucion{ErrorEjecucion::LayoutIncorrecto, describe(lugar) + QStringLiteral(": ") + que};
}

} // namespace kestrane::report
