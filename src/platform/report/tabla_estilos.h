#pragma once

#include "platform/report/medida_estilo.h"

#include <memory>
#include <vector>

namespace kestrane::report {

/// All styles that a report uses, each once, with their measures.
class TablaEstilos
{
public:
    /// The place of a style, which is added when it is new.
    [[nodiscard]] int indice(const Estilo& estilo);
    [[nodiscard]] const Estilo& estilo(int indice) const { return (*m_estilos)[static_cast<size_t>(indice)]; }
    /// Measured when first asked for.
    [[nodiscard]] const MedidaEstilo& medida(int indice) const;
    /// For pages, which outlive the table. Complete once all styles are in.
    [[nodiscard]] std::shared_ptr<const std::vector<Estilo>> estilos() const { return m_estilos; }

private:
    std::shared_ptr<std::vector<Estilo>> m_estilos = std::make_shared<std::vector<Estilo>>();
    mutable std::vector<std::unique_ptr<MedidaEstilo>> m_medidas;
};

} // namespace kestrane::report
