#pragma once

#include "cash/vocabulary/consulta_por_codigo.h"

/// Questions about one sale.
namespace kestrane {

/// The descriptions of its lines joined by " / ", lines of the chosen store; "" without lines.
[[nodiscard]] QString ProductosDeFactura(Listados& listados, const Valor& factura);
/// The sessions of the bono that it sold, as text; "" when it sold none.
[[nodiscard]] QString SesionesBono(Listados& listados, const Valor& factura);
/// Whether a discount voucher was spent on it.
[[nodiscard]] bool TieneValeAplicado(Listados& listados, const Valor& factura);
[[nodiscard]] ConsultaPorCodigo consultaDeValeAplicado();
/// Whether the client bought the service on that day.
[[nodiscard]] bool ServicioVendidoEnFecha(Listados& listados, const Valor& cliente, Fecha dia, const Valor& servicio);

} // namespace kestrane
