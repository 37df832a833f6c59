#pragma once

#include <QStringList>

namespace kestrane::prueba {

/// The statements that fill a shop with sales of every kind and payment, annulled sales, returns, debts, shared lines, vouchers,
/// notes and movements of the desk, all around 14 to 16 March 2024: the same ones for a seed. Amounts are multiples of 0.25, so
/// that their sums are exact in any order.
[[nodiscard]] QStringList tiendaGenerada(quint32 semilla);

} // namespace kestrane::prueba
