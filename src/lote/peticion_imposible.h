#pragma once

#include <QString>

#include <stdexcept>

namespace kestrane::lote {

/// What was asked for cannot be given in this shop (a store that it does not have, an answer that a dialog would refuse): known
/// only while the report runs, and still an error of usage.
class PeticionImposible : public std::runtime_error
{
public:
    explicit PeticionImposible(const QString& mensaje) : std::runtime_error{mensaje.toStdString()} {}
    [[nodiscard]] QString mensaje() const { return QString::fromUtf8(what()); }
};

} // namespace kestrane::lote
