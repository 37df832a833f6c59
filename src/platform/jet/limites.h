#pragma once

#include <QtGlobal>

/// What a statement may not exceed, on any engine: above what any statement of the system needs, below where the first of the
/// engines or of their drivers gives up. Tests run a statement at each limit on all engines.
namespace kestrane::jet::limites {

inline constexpr int LongitudTexto = 1024 * 1024; ///< UTF-16 units of one statement
inline constexpr int Anidamiento = 100;           ///< parentheses, signs, NOT, functions and sub-queries inside one another
inline constexpr int ProfundidadArbol = 500;      ///< levels of one expression, chains of operators included
inline constexpr int TablasUnidas = 32;           ///< tables of one FROM
inline constexpr int ElementosDeLista = 1000;     ///< columns of a result, those of `*` included
inline constexpr int ClavesDeLista = 250;         ///< of GROUP BY or ORDER BY: PostgreSQL carries them in rows of 1664 columns
inline constexpr int ElementosDeIn = 5000;        ///< of one list of IN
inline constexpr int LongitudNombre = 128;        ///< characters of a table, column or alias name
inline constexpr int Literales = 5000;            ///< of one statement: PostgreSQL's driver loses its way beyond 7498 parameters

// Of the statement as it is written for the engines (medida.h).
inline constexpr int Abiertos = 96;        ///< SQLite's parser keeps 100 symbols that wait for their end
inline constexpr int Altura = 950;         ///< SQLite takes expressions of 1000 levels
inline constexpr qint64 Escritos = 20'000; ///< columns, literals and operators, counted as often as they are written

} // namespace kestrane::jet::limites
