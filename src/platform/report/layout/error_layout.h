#pragma once

#include "platform/report/layout/expresion.h"

namespace kestrane::report {

/// "K_x.rpt, línea 12", or the file alone when the line is 0.
[[nodiscard]] QString describe(const LugarLayout& lugar);

/// About `cuantas` letters of `texto` from `desde` on, to be quoted: no letter is cut in half.
[[nodiscard]] QString trozo(QStringView texto, qsizetype desde, qsizetype cuantas);

/// Throws ErrorEjecucion LayoutIncorrecto: "K_x.rpt, línea 12: " and `que`, a Spanish sentence.
[[noreturn]] void fallaLayout(const LugarLayout& lugar, const QString& que);

} // namespace kestrane::report
