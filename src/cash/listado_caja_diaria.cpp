#include "cash/listado_caja_diaria.h"

#include "cash/caja_diaria.h"

namespace kestrane {

void ListadoCajaDiaria(Listados& listados)
{
    cash::CajaDiaria{listados}.construye();
}

} // namespace kestrane
