#pragma once

namespace kestrane::lote {

// The exit status of `listados-lote`.
inline constexpr int SalidaBien = 0;
inline constexpr int SalidaError = 1;    ///< run-time error, or a statement that answered with one
inline constexpr int SalidaUso = 2;      ///< the command line makes no sense, or not in this shop
inline constexpr int SalidaSinDatos = 3; ///< no report of the run had data

} // namespace kestrane::lote
