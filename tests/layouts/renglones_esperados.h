#pragma once

#include "layouts/listado_de_prueba.h"

#include <vector>

namespace kestrane::prueba {

/// Words that stand in one box. Their edge is that of the heading of a column, if they belong to one.
struct Casilla
{
    QString texto;
    int columna = -1;
    Clase clase = Clase::Texto;
};

/// What stands together on one page.
struct Renglon
{
    std::vector<Casilla> casillas;
    bool esCabecera = false; ///< repeated where a page goes on below it
};

/// What the rows of a listing become on paper, from the first to the last.
[[nodiscard]] std::vector<Renglon> renglonesDe(const Listado& listado, int filas);

} // namespace kestrane::prueba
