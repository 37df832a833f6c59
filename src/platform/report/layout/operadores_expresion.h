#pragma once

#include "platform/report/layout/funciones_expresion.h"

namespace kestrane::report {

/// An operator: what binds tighter has the greater strength, and operators of the same strength are read from the left.
struct OperadorExpresion
{
    int fuerza = 0;
    FuncionExpresion funcion; ///< under the operator's sign
};

/// Between two values, case ignored ("Y"); null when there is none.
[[nodiscard]] const OperadorExpresion* operadorEntre(QStringView signo);
/// In front of one.
[[nodiscard]] const OperadorExpresion* operadorDelante(QStringView signo);

} // namespace kestrane::report
