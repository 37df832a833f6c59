#pragma once

#include "platform/report/layout/ambito_seccion.h"

namespace kestrane::report {

/// The report that the root of a file describes. `layout` has its file and folder already.
void leeInforme(const ElementoXml& raiz, MesaLectura& mesa, Layout& layout);

/// A report within a band of the report of `fuera`, on paper as wide as its box and without end.
[[nodiscard]] Layout leeSubinforme(const ElementoXml& xml, const AmbitoSeccion& fuera, double ancho);

} // namespace kestrane::report
