#pragma once

#include "platform/runtime/configuracion_regional.h"

#include <QByteArray>

namespace kestrane::jet {

/// The pieces of an engine's format for dates.
struct FormatoDeFecha
{
    const char* anio;
    const char* mes;
    const char* dia;
    const char* hora;
};

/// The engine's format for the regional short date, fit to stand between apostrophes.
[[nodiscard]] QByteArray formatoDeDia(const FormatoDeFecha& formato, const ConfiguracionRegional& regional);

} // namespace kestrane::jet
