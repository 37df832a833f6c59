#pragma once

#include "platform/jet/tipos.h"
#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/valor.h"

namespace kestrane::database {

/// The value as a column of that type holds it: text, flag, 16-bit, 32-bit, double or date, or Null. Texts are read and written by
/// the regional settings, doubles rounded half to even. Error 13 or 6 when it cannot be converted, -2147217900 for a Null where the
/// column takes none and for a text wider than the column, each with the column's name.
[[nodiscard]] Valor valorParaColumna(const Valor& valor, const jet::Columna& columna, const ConfiguracionRegional& regional);

/// Error -2147217900 with the widths when `texto` is wider than `ancho` characters (0: any width).
void exigeAncho(QStringView texto, int ancho, const QString& columna);

/// Error -2147217900 when `texto` holds the character 0, which not all databases keep. `columna` may be "".
void exigeEscribible(QStringView texto, const QString& columna);

} // namespace kestrane::database
