#pragma once

#include <QString>

#include <memory>

namespace kestrane {

/// Lets one copy of the program run on a machine, whoever its users are.
class CopiaUnica
{
public:
    virtual ~CopiaUnica() = default;
    /// True when no other copy runs: from now on this is the one, until the object or the process ends, a crash included. False
    /// when one does. Where the machine cannot tell, this copy runs.
    [[nodiscard]] virtual bool ocupa() = 0;
};

/// The lock of the machine called `nombre` (at most 100 bytes in UTF-8; std::length_error beyond).
[[nodiscard]] std::unique_ptr<CopiaUnica> creaCopiaUnica(const QString& nombre);

} // namespace kestrane
