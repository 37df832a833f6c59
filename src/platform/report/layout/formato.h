#pragma once

#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/valor.h"

#include <QString>

#include <optional>

namespace kestrane::report {

/// How a value is written on paper and what kind of cell it is in a spreadsheet.
enum class Formato {
    General,    ///< the platform's conversion
    Entero,     ///< 1.234
    Numero,     ///< 1.234,50
    Moneda,     ///< 1.234,50 with the shop's number of decimals
    Porcentaje, ///< 12,50 %
    Fecha,      ///< 05/03/2024
    FechaHora,  ///< 05/03/2024 9:05
    Hora,       ///< 9:05
};

/// The format that layouts call `nombre` ("moneda", "fecha-hora"), case ignored.
[[nodiscard]] std::optional<Formato> formatoDeNombre(QStringView nombre);

struct FormatoValor
{
    Formato formato = Formato::General;
    std::optional<int> decimales = {}; ///< none: those of the format
    bool ceroEnBlanco = false;

    friend bool operator==(const FormatoValor&, const FormatoValor&) = default;
};

/// How many decimals a number has under `formato`: what it says, else none for Entero, those of `regional` for Moneda, else 2.
[[nodiscard]] int decimalesDe(const FormatoValor& formato, const ConfiguracionRegional& regional);

/// `valor` as it stands on paper, with the marks of `regional`; Null gives "". What is no number under a number's format and no
/// date under a date's stays as the platform's conversion writes it; the zero day is no day: Fecha leaves it blank, FechaHora
/// writes the time alone. A percentage is written as it stands: 12.5 is 12,50 %. Error 6 for an infinity.
[[nodiscard]] QString escribeValor(const Valor& valor, const FormatoValor& formato, const ConfiguracionRegional& regional);

} // namespace kestrane::report
