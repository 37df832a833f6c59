#pragma once

#include "platform/report/preview/impresion_vista.h"

namespace kestrane::report::prueba {

/// Printers that write down what they were sent.
class ImpresionDePrueba final : public ImpresionVista
{
public:
    [[nodiscard]] QStringList impresoras() const override { return nombres; }
    [[nodiscard]] QString predeterminada() const override { return nombres.isEmpty() ? QString{} : nombres.last(); }
    int imprime(FuenteVista& fuente, const PeticionImpresion& peticion, const AvanceExportacion& avance) override
    {
        completa = fuente.completa();
        peticiones.push_back(peticion);
        return alImprimir ? alImprimir(avance) : 1;
    }

    QStringList nombres{QStringLiteral("OKI"), QStringLiteral("HP")};
    std::vector<PeticionImpresion> peticiones;
    bool completa = false;
    std::function<int(const AvanceExportacion&)> alImprimir; ///< how many pages it sends
};

} // namespace kestrane::report::prueba
