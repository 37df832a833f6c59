#pragma once

#include "platform/suite/paleta.h"

#include <QCalendarWidget>

namespace kestrane {

/// Gives a calendar what it keeps beside its palette: the colour of week-ends, and the bar of months as a selection, with arrows
/// that are seen on it.
void pintaCalendario(QCalendarWidget& calendario, const Paleta& paleta);

/// Whether the control stands in the bar of months, whose colours are not the window's.
[[nodiscard]] bool esDeCalendario(const QWidget& control);

} // namespace kestrane
