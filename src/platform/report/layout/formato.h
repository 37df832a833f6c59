#pragma once

#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/valor.h"

#include <QString>

namespace kestrane::report {

/// How a value is written on paper and what kind of cell it is in a spreadsheet.
enum class Formato {
    General,    ///< the platform's conversion
    Entero,     ///< 1.234
    Numero,     ///< 1.234,50
    Moneda,     ///< 1.234,50 with as many decimals as the layout says
    Porcentaje, ///< 12,50 %
    Fecha,      ///< 05/03/2024
    FechaHora,  ///< 05/03/2024 9:05
    Hora,       ///< 9:05
};

struct FormatoValor
{
    Formato formato = Formato::General;
    int decimales = 2;
    bool ceroEnBlanco = false;

    friend bool operator==(const FormatoValor&, const FormatoValor&) = default;
};

/// `valor` as it stands on paper, with the marks of `regional`; Null gives "". A text under a number's or date's format stays as it
/// is.
[[nodiscard]] QString escribeValor(const Valor& valor, const FormatoValor& formato, const ConfiguracionRegional& regional);

} // namespace kestrane::report
