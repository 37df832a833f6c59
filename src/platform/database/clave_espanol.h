#pragma once

#include <QByteArray>
#include <QStringView>

namespace kestrane::database::espanol {

/// Appends bytes that sort, byte by byte, as espanol::compara sorts the texts: equal texts have equal bytes, and none is the
/// beginning of another's. For sorting many texts once.
void anadeClave(QByteArray& destino, QStringView texto);

} // namespace kestrane::database::espanol
