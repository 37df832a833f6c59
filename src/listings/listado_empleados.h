#pragma once

#include "pipeline/listados.h"

namespace kestrane {

/// Listing of the working employees, with their four pay steps. Error 3021 for an employee who has one to three of them.
void ListadoEmpleados(Listados& listados);

} // namespace kestrane
