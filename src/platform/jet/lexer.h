#pragma once

#include "platform/jet/error_sql.h"
#include "platform/jet/token.h"
#include "platform/runtime/resultado.h"

#include <QStringView>

#include <vector>

namespace kestrane::jet {

/// Text -> tokens, the last one of class Fin. The tokens point into `sentencia`.
[[nodiscard]] Resultado<std::vector<Token>, ErrorSql> tokeniza(QStringView sentencia);

} // namespace kestrane::jet
