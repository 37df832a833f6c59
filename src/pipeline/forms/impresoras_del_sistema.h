#pragma once

#include "pipeline/salida_de_report.h"

namespace kestrane {

/// The printers of this machine, asked for anew each time.
class ImpresorasDelSistema final : public Impresoras
{
public:
    [[nodiscard]] std::vector<ImpresoraInstalada> lista() const override;
};

} // namespace kestrane
