#pragma once

#include "instalacion/demo/destino.h"
#include "instalacion/demo/parametros.h"

#include <functional>

namespace kestrane::demo {

/// Makes a whole demo shop and hands its rows to `destino`, day by day: memory does not grow with the number of sales. Equal
/// parameters give equal rows in equal order. `trasCadaDia` is called when a day is told.
void generaTienda(const Parametros& parametros, Destino& destino, const std::function<void()>& trasCadaDia = {});

} // namespace kestrane::demo
