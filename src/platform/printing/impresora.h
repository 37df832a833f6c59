#pragma once

#include <QString>

#include <vector>

namespace kestrane::printing {

/// A printer of the system. What the system does not tell is "".
struct Impresora
{
    QString nombre;      ///< by which it is chosen
    QString controlador; ///< make and model, as its driver names itself
    QString puerto;      ///< where it stands

    friend bool operator==(const Impresora&, const Impresora&) = default;
};

/// All printers in the system's order. Needs an application of windows or of painting.
[[nodiscard]] std::vector<Impresora> impresoras();

/// Whether the system has it now, by its exact name.
[[nodiscard]] bool existeImpresora(const QString& nombre);

/// The name of the printer on which the system prints when none is chosen, "" when it has none.
[[nodiscard]] QString impresoraPredeterminada();

} // namespace kestrane::printing
