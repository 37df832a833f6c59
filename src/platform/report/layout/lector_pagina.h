#pragma once

#include "platform/report/layout/arbol_xml.h"
#include "platform/report/layout/layout.h"

namespace kestrane::report {

/// The paper that the <pagina> or the <rollo> of `informe` describes, A4 upright without either. Error for both, and for margins
/// and columns that leave no room.
[[nodiscard]] Pagina leePagina(const ElementoXml& informe);

/// How wide one of its columns is.
[[nodiscard]] double anchoDeColumna(const Pagina& pagina);

} // namespace kestrane::report
