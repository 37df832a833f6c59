#pragma once

#include "platform/report/documento.h"

#include <functional>

namespace kestrane::printing {

/// What is to be printed and where.
struct PeticionImpresion
{
    QString impresora; ///< its exact name; "": the system's own choice
    int desde = 1;     ///< first page, from 1
    int hasta = 0;     ///< last page; 0 or past the end: to the end
    int copias = 1;
    bool intercaladas = true; ///< each copy whole, one behind the other
};

/// Told how far the work is (0 to 1). False breaks it off and nothing is printed, as long as pages are laid out; once the first one
/// goes out there is no way back, and the answer does not matter.
using AvanceImpresion = std::function<bool(double)>;

/// Lays out to the end and sends the pages to the printer, each on paper of its own size with the layout's margins alone. False
/// when it was broken off. ErrorDeSalida when there is no printer, when the chosen one is not there (any more), when no page lies
/// in the range, and when the printer refuses the job. Needs an application of windows or of painting.
bool imprime(report::Documento& documento, const PeticionImpresion& peticion, const AvanceImpresion& avance = {});

} // namespace kestrane::printing
