#pragma once

#include "cash/vocabulary/consulta_por_codigo.h"

/// What a unit cost the shop, euros without tax, as the catalogue has it today; 0 when there is none. Error 94 when it is Null.
namespace kestrane {

/// `coste` of `productos`.
[[nodiscard]] double CosteProducto(Listados& listados, const Valor& codigo);
/// `coste` of the variant `hijo` in `productostextil`; with "-1", which is no variant, that of the product.
[[nodiscard]] double CosteVariante(Listados& listados, const Valor& codigo, const QString& hijo);
/// The cost of a unit of a sold or returned line: of its variant (`codproductotextil`, Null is none) in shops of sizes and colours,
/// of its product (`codigo`) in all others.
[[nodiscard]] double costeDeLinea(Listados& listados, Recordset& linea);

} // namespace kestrane
