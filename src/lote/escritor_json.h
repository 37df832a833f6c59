#pragma once

#include "platform/runtime/valor.h"

#include <QByteArray>
#include <QStringView>

/// JSON in UTF-8, appended to a buffer: for results of any length, which a document object would hold whole.
namespace kestrane::lote {

/// A text in quotes, escaped.
void anadeTextoJson(QByteArray& destino, QStringView texto);

/// Null, true or false, a whole number, a double in the shortest text that reads back the same, a date as "2024-03-15T00:00:00",
/// a text.
void anadeValorJson(QByteArray& destino, const Valor& valor);

} // namespace kestrane::lote
