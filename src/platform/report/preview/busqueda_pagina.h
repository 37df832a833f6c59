#pragma once

#include "platform/report/preview/plegado.h"
#include "platform/report/preview/texto_pagina.h"

#include <vector>

namespace kestrane::report {

/// What was found on a page: characters from the beginning of stretch `tramo` on; past its end they go on in the lines that follow
/// it in its cell.
struct TrechoPagina
{
    int tramo = 0;
    Trecho trecho;

    friend bool operator==(const TrechoPagina&, const TrechoPagina&) = default;
};

/// Where `buscado`, which is folded already, stands on a page, in the order in which it is read. What is broken over the lines of a
/// cell is found whether it is broken between two words or within one.
[[nodiscard]] std::vector<TrechoPagina> encuentraEnPagina(const QString& buscado, const TextoPagina& pagina);

} // namespace kestrane::report
