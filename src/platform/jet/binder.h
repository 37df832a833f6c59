#pragma once

#include "platform/jet/ast/sentencia.h"
#include "platform/jet/enlazado.h"
#include "platform/jet/error_sql.h"
#include "platform/runtime/resultado.h"

namespace kestrane::jet {

/// Syntax tree -> bound tree: names are looked up in the catalogue, expressions get their types, and what makes no sense is
/// refused. The catalogue must outlive the bound tree.
[[nodiscard]] Resultado<enlazado::Sentencia, ErrorSql> enlaza(const ast::Sentencia& sentencia, Catalogo& catalogo);

} // namespace kestrane::jet
