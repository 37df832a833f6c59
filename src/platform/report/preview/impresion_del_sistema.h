#pragma once

#include "platform/report/preview/impresion_vista.h"

namespace kestrane::report {

/// The printers of this machine.
class ImpresionDelSistema final : public ImpresionVista
{
public:
    [[nodiscard]] QStringList impresoras() const override;
    [[nodiscard]] QString predeterminada() const override;
    int imprime(FuenteVista& fuente, const PeticionImpresion& peticion, const AvanceExportacion& avance) override;
};

} // namespace kestrane::report
