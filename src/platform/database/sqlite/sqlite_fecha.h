#pragma once

#include "platform/runtime/fecha.h"

#include <optional>
#include <string_view>

/// Dates as the embedded files hold them: texts, compared as texts, so each date has exactly one spelling when written. What other
/// programs wrote is read tolerantly.
namespace kestrane::database::sqlite {

inline constexpr int AnchoFecha = 19;

/// Writes "YYYY-MM-DD", and " HH:MM:SS" when the time is not midnight; returns the length (10 or 19). No ending zero.
int escribeFecha(Fecha fecha, char* destino);

/// "2024-03-15", "2024-03-15 9:05", "2024-03-15T09:05:00.000", "9:05" (a bare time); nothing for any other text.
[[nodiscard]] std::optional<Fecha> leeFecha(std::string_view texto);
/// Days since 30/12/1899 with the time as fraction, as some programs store them; nothing out of range.
[[nodiscard]] std::optional<Fecha> leeFecha(double serie);

} // namespace kestrane::database::sqlite
