#pragma once

#include "cash/vocabulary/consulta_por_codigo.h"
#include "platform/runtime/conversiones.h"

namespace kestrane {

/// The running values of sold and returned lines, gross euros, and of their tickets.
struct TotalesVentas
{
    double TotalServicios = 0;
    double TotalPacks = 0;
    double TotalPacksSpa = 0;
    double TotalProductos = 0;
    double CosteProductos = 0;    ///< what the products cost the shop
    Contador16 UnidadesServicios; ///< services and sessions; a sold bono is one, a returned one its units
    Contador16 NumeroTickets;
};

/// Which kind of line counts as a spa pack.
namespace pack_spa {
inline constexpr QStringView Corriente = u"PSPA";
inline constexpr QStringView DeFormasDePago = u"SP"; ///< where PSPA counts in nothing
} // namespace pack_spa

/// Adds a sold or annulled line. `pago` is its header's: paid from deposit it counts in units and cost, not in money. The reserved
/// deposit service (S, 2) counts in nothing. Error 94 for a Null amount that is added, error 6 when a counter runs over.
void sumaLineaVendida(Listados& listados, TotalesVentas& totales, const Valor& pago, Recordset& linea,
                      QStringView packSpa = pack_spa::Corriente);
/// Takes a returned line off: whatever it was paid with, the deposit service too, and a bono by its `unidades`.
void restaLineaDevuelta(Listados& listados, TotalesVentas& totales, Recordset& linea, QStringView packSpa = pack_spa::Corriente);
/// Services, packs and spa packs in one sum, which takes the place of that of the services.
void juntaServiciosYPacks(TotalesVentas& totales);

/// Whether a line is money paid into a deposit.
[[nodiscard]] bool esIngresoEnDeposito(const Listados& listados, Recordset& linea);

} // namespace kestrane
