#include "cash/listado_formas_pago_ventas.h"

#include "cash/formas_pago_ventas.h"

namespace kestrane {

void ListadoFormasPagoVentas(Listados& listados)
{
    cash::FormasPagoVentas{listados}.construye();
}

} // namespace kestrane
