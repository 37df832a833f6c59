#pragma once

#include "platform/runtime/valor.h"

namespace kestrane {

/// The payment codes that the program tells apart: `pago` of a header, `FORMA_pago` of a debt's payment. All others have a name and
/// nothing else.
enum class Pago : qint16 {
    Contado = 1,
    Tarjeta = 2,
    Partido = 3,  ///< part in cash and part by card, the row's `efectivo` and `tarjeta`
    Deposito = 4, ///< from what the client has in deposit: no money comes in
};

/// True when `codigo` is `pago`; a Null is none of them.
[[nodiscard]] bool esPago(const Valor& codigo, Pago pago);
/// True when `codigo` is not 4, so that the sale counts in totals; false for Null.
[[nodiscard]] bool entraDinero(const Valor& codigo);

} // namespace kestrane
