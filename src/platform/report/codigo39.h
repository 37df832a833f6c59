#pragma once

#include "platform/report/layout/layout.h"

#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

namespace kestrane::report {

/// Whether the machine has the font that shops print Code 39 with.
[[nodiscard]] bool hayLetraCodigo39();
/// That font, as high as `alto` millimetres.
[[nodiscard]] Estilo estiloCodigo39(double alto);
/// The text that the font turns into a bar code: between the marks of start and stop.
[[nodiscard]] QString textoCodigo39(const QString& valor);

/// Whether Code 39 has a sign for each character; small letters stand for capitals. Not for an empty text.
[[nodiscard]] bool esCodigo39(const QString& valor);
/// The bars of a text within `caja`, quiet zones included, in the middle of it. None when it cannot be written in Code 39, or
/// not wide enough to be read.
[[nodiscard]] std::vector<QRectF> barrasCodigo39(const QString& valor, const QRectF& caja);

} // namespace kestrane::report
