#pragma once

#include "cash/vendedores.h"

/// Services that several employees gave together, in the general cash report.
namespace kestrane {

/// Adds the whole price of each shared line sold in the period to the row of that combination of employees, whose key begins with a
/// 1 ("1,3,7"). Money paid into deposits is not left out.
void sumaServiciosCompartidos(Listados& listados, Vendedores& vendedores);

/// Adds a row for each shared line of the annulled sales of the period, from the shares ("3,7", "Ana P (Compartido con) Luis G").
/// Shares that follow one another in stored order and have the same sale and code are one line; a row of the same employees that is
/// there already is left alone. Error 94 for a share without amount or code.
void anadeServiciosCompartidosAnulados(Listados& listados, Vendedores& vendedores);

} // namespace kestrane
