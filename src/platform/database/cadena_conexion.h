#pragma once

#include "platform/database/entorno_datos.h"

#include <QString>

namespace kestrane::database {

/// Reads "dsn=NAME", with or without "uid" and "pwd", into what an engine is asked for; user and password given apart go before
/// those of the text. Error -2147467259 for anything else, a name with path marks included.
[[nodiscard]] DestinoConexion leeCadena(const QString& cadena, const QString& usuario, const QString& clave);

} // namespace kestrane::database
