#pragma once

#include <QString>

/// Names of tables, columns and results: case is ignored, beyond ASCII too, each character folded on its own ("ß" is not "ss");
/// accents are not.
namespace kestrane::jet {

/// One character without its case.
[[nodiscard]] char32_t plegado(char32_t c);

/// True when two names are equal but for case.
[[nodiscard]] bool mismoNombre(QStringView a, QStringView b);
/// A name without its case, as a key: two names have one key exactly when they are the same.
[[nodiscard]] QString nombrePlegado(QStringView nombre);
/// Of names that are the same, the same.
[[nodiscard]] size_t hashDeNombre(QStringView nombre);

} // namespace kestrane::jet
