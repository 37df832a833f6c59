#include "platform/jet/formato_fecha.h"

namespace kestrane::jet {

QByteArray formatoDeDia(const FormatoDeFecha& formato, const ConfiguracionRegional& regional)
{
    const QByteArray marca = QString(regional.marcaFecha).toUtf8();
    const auto junta = [&](const char* a, const char* b, const char* c) { return a + marca + b + marca + c; };
    switch (regional.ordenFecha) {
    case ConfiguracionRegional::OrdenFecha::DiaMesAnio:
        return junta(formato.dia, formato.mes, formato.anio);
    case ConfiguracionRegional::OrdenFecha::MesDiaAnio:
        return junta(formato.mes, formato.dia, formato.anio);
    case ConfiguracionRegional::OrdenFecha::AnioMesDia:
        return junta(formato.anio, formato.mes, formato.dia);
    }
    Q_UNREACHABLE();
}

} // namespace kestrane::jet
