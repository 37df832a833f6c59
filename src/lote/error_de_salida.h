#pragma once

#include <QString>

#include <stdexcept>

namespace kestrane::lote {

/// The output cannot be written (disk full, pipe closed): nothing more can be said there.
class ErrorDeSalida : public std::runtime_error
{
public:
    explicit ErrorDeSalida(const QString& motivo) : std::runtime_error{motivo.toStdString()} {}
};

} // namespace kestrane::lote
