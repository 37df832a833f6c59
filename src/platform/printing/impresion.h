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

/// Told how far the work is (0 to 1). False breaks it off: before the first page nothing is printed; later the pages that are
/// behind come out and the rest does not, unless the system can take the whole job back.
using AvanceImpresion = std::function<bool(double)>;

/// Lays out to the end and sends the pages to the printer, each on paper of its own size with the layout's margins alone. How many
/// were sent: all that were asked for, or fewer when it was broken off. ErrorDeSalida when there is no printer, when the chosen one
/// is not there (any more), when no page lies in the range, and when the printer refuses the job. Needs an application of windows
/// or of painting.
int imprime(report::Documento& documento, const PeticionImpresion& peticion, const AvanceImpresion& avance = {});

} // namespace kestrane::printing
