#pragma once

#include "platform/report/layout/ambito_seccion.h"

namespace kestrane::report {

/// What is higher than a page has room for would be painted over its edge: the error that says so of `quien`.
void compruebaAlto(double alto, const QString& quien, const LugarLayout& lugar, const AmbitoSeccion& ambito);

/// The bands of `seccion`, shared ones in their places; none when there is no such section.
[[nodiscard]] Seccion leeSeccion(const ElementoXml* seccion, const AmbitoSeccion& ambito);

} // namespace kestrane::report
