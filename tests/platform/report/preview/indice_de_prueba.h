#pragma once

#include "platform/report/documento.h"

#include <vector>

namespace kestrane::report::prueba {

/// Two sections, the first with two families.
inline std::vector<EntradaIndice> seccionesConFamilias()
{
    return {{QStringLiteral("Sección A"), 0, 0, 30},
            {QStringLiteral("Familia 1"), 1, 0, 40},
            {QStringLiteral("Familia 2"), 1, 2, 10},
            {QStringLiteral("Sección B"), 0, 3, 30}};
}

} // namespace kestrane::report::prueba
