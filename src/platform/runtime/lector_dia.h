#pragma once

#include "platform/runtime/fecha.h"

#include <QStringView>

#include <optional>

namespace kestrane {

/// A day as the command lines of the programs take it: "2024-03-15", four, two and two digits; nothing for any other text and for a
/// day that the calendar does not have.
[[nodiscard]] std::optional<Fecha> leeDia(QStringView texto);

} // namespace kestrane
