#pragma once

#include "platform/runtime/avisos.h"
#include "platform/runtime/latido.h"

#include <optional>

namespace kestrane {

/// The Avisos of a program as it runs: by the machine's clock, and beating by themselves where somebody watches.
class AvisosVivos
{
public:
    /// As Avisos has them.
    AvisosVivos(const QString& programa, QIODevice& errores, DestinoErrores destino);

    [[nodiscard]] Avisos& avisos() { return m_avisos; }

private:
    Avisos m_avisos;
    std::optional<Latido> m_latido; ///< ends before what it beats goes
};

} // namespace kestrane
