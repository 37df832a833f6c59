#pragma once

#include <QString>

#include <vector>

namespace kestrane::prueba {

/// Conditions over the columns of cabecera_factura, the same ones in every run: comparisons, BETWEEN, IN, LIKE, IS NULL and
/// arithmetic on columns of every type, joined by AND, OR and NOT.
[[nodiscard]] std::vector<QString> condicionesGeneradas(int cuantas);

} // namespace kestrane::prueba
