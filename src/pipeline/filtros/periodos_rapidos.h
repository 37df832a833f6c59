#pragma once

#include "platform/runtime/fecha.h"

#include <QString>

#include <span>

/// The periods that are asked for every day.
namespace kestrane {

struct Periodo
{
    Fecha desde;
    Fecha hasta;

    friend bool operator==(const Periodo&, const Periodo&) = default;
};

struct PeriodoRapido
{
    QStringView leyenda;
    Periodo (*en)(Fecha hoy); ///< both ends included
};

/// Hoy, ayer, esta semana (from Monday to today), este mes (to today), mes anterior (whole), este año (to today).
[[nodiscard]] std::span<const PeriodoRapido> periodosRapidos();

} // namespace kestrane
