#pragma once

#include <QWidget>

namespace kestrane {

/// The least height of what a finger is to hit, in points of the screen at no scale.
inline constexpr int AltoTactil = 44;

/// Gives buttons, fields and options that height, once: all of them where the window asks for it, else those that do. Scaling takes
/// it along. A control with a greatest height keeps that.
void daObjetivosTactiles(QWidget& ventana);

} // namespace kestrane
