#pragma once

#include "platform/printing/impresion.h"
#include "platform/report/pagina_compuesta.h"

#include <QPainter>

namespace kestrane::printing {

/// A report that is laid out, as the printer takes it.
struct TrabajoImpresion
{
    QString titulo; ///< of the job in the queue
    int paginas = 0;
    std::function<report::PaginaCompuesta(int)> pagina; ///< from 0
    /// Paints a page at the painter's origin, so many units a millimetre.
    std::function<void(QPainter&, const report::PaginaCompuesta&, double porMilimetro)> pinta;
};

/// As `imprime`, of pages that are known.
int imprimeTrabajo(const TrabajoImpresion& trabajo, const PeticionImpresion& peticion, const AvanceImpresion& avance);

} // namespace kestrane::printing
