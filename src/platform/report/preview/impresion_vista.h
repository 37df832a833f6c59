#pragma once

#include "platform/report/preview/fuente_vista.h"

#include <QStringList>

namespace kestrane::report {

/// What the operator wants printed. Pages from 1; `hasta` past the last page means the last.
struct PeticionImpresion
{
    QString impresora;
    int desde = 1;
    int hasta = 1;
    int copias = 1;

    friend bool operator==(const PeticionImpresion&, const PeticionImpresion&) = default;
};

/// The printers as the preview needs them.
class ImpresionVista
{
public:
    virtual ~ImpresionVista() = default;
    /// Device names, in the system's order.
    [[nodiscard]] virtual QStringList impresoras() const = 0;
    /// "" when there is none.
    [[nodiscard]] virtual QString predeterminada() const = 0;
    /// Sends the pages of a complete report. How many: all that were asked for unless `avance` broke it off, be it that the first
    /// ones were out by then. ErrorEjecucion or ErrorDeSalida when the printer does not take them.
    virtual int imprime(FuenteVista& fuente, const PeticionImpresion& peticion, const AvanceExportacion& avance) = 0;
};

} // namespace kestrane::report
