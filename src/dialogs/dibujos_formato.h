#pragma once

#include <QColor>
#include <QIcon>

namespace kestrane {

/// A sheet of paper, or the strip of a ticket printer, in lines of that colour.
[[nodiscard]] QIcon dibujoDeFormato(bool ticket, const QColor& color);

} // namespace kestrane
