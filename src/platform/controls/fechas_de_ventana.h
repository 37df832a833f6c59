#pragma once

#include "platform/runtime/fecha.h"

#include <QDate>

/// Dates on their way to widgets and back.
namespace kestrane {

/// The day, without its time.
[[nodiscard]] QDate diaDe(Fecha fecha);
/// That day at midnight; the zero date for a day that is none, or of a year that dates do not reach.
[[nodiscard]] Fecha fechaDe(QDate dia);

} // namespace kestrane
