#pragma once

#include <QByteArray>
#include <QString>

namespace kestrane::prueba {

/// A font file (TrueType or OpenType) whose family is called `familia`: its table of names replaced, all else as it was.
[[nodiscard]] QByteArray letraRenombrada(const QByteArray& fichero, const QString& familia);

} // namespace kestrane::prueba
