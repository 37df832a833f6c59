#pragma once

#include "platform/report/documento.h"
#include "platform/report/informe_enlazado.h"

namespace kestrane::report {

/// The sub-reports of a report that have rows and stand on its paper, in the order of the paper, each once: those of its rows and
/// groups when they show for some row. Those within a sub-report follow it.
[[nodiscard]] std::vector<DatosSubinforme> subinformesVisibles(const InformeEnlazado& informe,
                                                               const ConfiguracionRegional& regional);

} // namespace kestrane::report
