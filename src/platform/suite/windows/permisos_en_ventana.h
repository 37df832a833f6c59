#pragma once

#include "platform/suite/permisos_empleado.h"

#include <QWidget>

namespace kestrane {

/// Hides and disables every control of the window that the employee may not use: hidden, nobody wonders what it would do; disabled,
/// a program that shows it again still does not let it be used. Controls without a name are nobody's.
void AplicarPermisos(QWidget& ventana, const Permisos& permisos);

} // namespace kestrane
