#pragma once

#include "platform/report/layout/arbol_xml.h"
#include "platform/report/layout/formato.h"
#include "platform/report/layout/layout.h"

/// Attributes as values. Their writing is checked already; one that is not written gives the value at the end.
namespace kestrane::report {

[[nodiscard]] QString textoDe(const ElementoXml& elemento, QStringView cual, const QString& siFalta = {});
[[nodiscard]] bool siNoDe(const ElementoXml& elemento, QStringView cual, bool siFalta);
/// "*" counts as not written.
[[nodiscard]] double medidaDe(const ElementoXml& elemento, QStringView cual, double siFalta);
/// "ninguno" gives the invalid colour.
[[nodiscard]] QColor colorDe(const ElementoXml& elemento, QStringView cual, const QColor& siFalta);
[[nodiscard]] Horizontal horizontalDe(const ElementoXml& elemento, QStringView cual, Horizontal siFalta);
[[nodiscard]] Vertical verticalDe(const ElementoXml& elemento, QStringView cual, Vertical siFalta);
[[nodiscard]] bool esDescendente(const ElementoXml& elemento);
/// `formato`, `decimales` and `cero`.
[[nodiscard]] FormatoValor formatoDe(const ElementoXml& elemento);
/// Left, top, right, bottom.
[[nodiscard]] QMarginsF margenesDe(const ElementoXml& elemento, const QMarginsF& siFaltan);

} // namespace kestrane::report
