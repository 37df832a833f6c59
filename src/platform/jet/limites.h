#pragma once

/// What a statement may not exceed. Far above what any statement of the system needs, low enough that no text can exhaust the
/// stack or the engines' own limits.
namespace kestrane::jet::limites {

inline constexpr int LongitudTexto = 1024 * 1024; ///< UTF-16 units of one statement
inline constexpr int Anidamiento = 100;           ///< parentheses, signs and sub-queries inside one another
inline constexpr int ProfundidadArbol = 500;      ///< levels of one expression, chains of operators included
inline constexpr int TablasUnidas = 32;           ///< tables of one FROM
inline constexpr int ElementosDeLista = 1000;     ///< of SELECT, GROUP BY or ORDER BY
inline constexpr int LongitudNombre = 128;        ///< characters of a table, column or alias name

} // namespace kestrane::jet::limites
