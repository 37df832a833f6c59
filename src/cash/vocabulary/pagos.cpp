#include "cash/vocabulary/pagos.h"

namespace kestrane {

bool esPago(const Valor& codigo, Pago pago)
{
    return !codigo.esNulo() && codigo.entero32() == static_cast<qint32>(pago);
}

bool entraDinero(const Valor& codigo)
{
    return !codigo.esNulo() && !esPago(codigo, Pago::Deposito);
}

} // namespace kestrane
