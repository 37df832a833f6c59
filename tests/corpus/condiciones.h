#pragma once

#include <QString>

#include <vector>

namespace kestrane::prueba {

/// Conditions over the columns of cabecera_factura, the same ones in every run: comparisons, BETWEEN, IN, LIKE, IS NULL and
/// arithmetic on columns of every type, Null as a literal, flags, functions and sub-queries, joined by AND, OR and NOT and compared
/// with one another.
[[nodiscard]] std::vector<QString> condicionesGeneradas(int cuantas);

} // namespace kestrane::prueba
