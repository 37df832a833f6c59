#pragma once

#include "cash/vocabulary/consulta_por_codigo.h"

/// Sales left unpaid (`cabecera_pago`) and what was paid of them later (`detalle_pago`).
namespace kestrane {

/// Whether the sale was left unpaid in the chosen store.
[[nodiscard]] bool TienePagoPendiente(Listados& listados, const Valor& venta);
[[nodiscard]] ConsultaPorCodigo consultaDePagoPendiente(const ContextoEjecucion& contexto);
/// What was left unpaid when the sale was made, euros; 0 when nothing was. Whatever the store.
[[nodiscard]] double ImportePendiente(Listados& listados, const Valor& venta);
[[nodiscard]] ConsultaPorCodigo consultaDeImportePendiente();

/// Both questions will be asked for each row of `ventas`, by its `Numero`.
void anunciaDeudas(const ContextoEjecucion& contexto, Recordset& ventas);

/// The sale and the client of a debt; 0 when there is no such debt.
[[nodiscard]] qint32 FacturaDelPago(Listados& listados, const Valor& pago);
[[nodiscard]] qint32 ClienteDelPago(Listados& listados, const Valor& pago);
[[nodiscard]] ConsultaPorCodigo consultaDeFacturaDelPago();
[[nodiscard]] ConsultaPorCodigo consultaDeClienteDelPago();

/// The day of a debt's last payment; 1/1/2000 when it has none.
[[nodiscard]] Fecha UltimaFechaPago(Listados& listados, const Valor& pago);
/// What was paid of a debt so far, euros. The progress bar goes on with each payment.
[[nodiscard]] double TotalPagado(Listados& listados, const Valor& pago);

} // namespace kestrane
