#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

namespace kestrane::report {

/// Paints a text whose base line begins at the painter's origin where some of its letters are pictures, as emoji are: PDF has no
/// such letters, and would leave them blank. False, and nothing painted, when it has none.
[[nodiscard]] bool pintaConColores(QPainter& pintor, const QFont& letra, const QString& texto);

} // namespace kestrane::report
