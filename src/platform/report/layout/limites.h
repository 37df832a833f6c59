#pragma once

#include <QtGlobal>

/// What a layout may not exceed: far above what a report needs, far below what would hold up the program.
namespace kestrane::report::limites {

inline constexpr qint64 BytesFichero = qint64{1024} * 1024;
inline constexpr int Elementos = 10'000;  ///< of a file, and of a report with its shared parts put in their places
inline constexpr int ProfundidadXml = 24; ///< elements inside one another; sub-reports in sub-reports are the deepest
inline constexpr int Partes = 16;         ///< files of shared parts
inline constexpr size_t Grupos = 20;      ///< of one report or sub-report, one within the other
inline constexpr int LongitudExpresion = 2000;
inline constexpr int AnidamientoExpresion = 50;
inline constexpr size_t Agregados = 500; ///< of one report or sub-report

} // namespace kestrane::report::limites
