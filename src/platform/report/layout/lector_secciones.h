#pragma once

#include "platform/report/layout/ambito_seccion.h"

namespace kestrane::report {

/// The bands of `seccion`, shared ones in their places; none when there is no such section.
[[nodiscard]] Seccion leeSeccion(const ElementoXml* seccion, const AmbitoSeccion& ambito);

} // namespace kestrane::report
