#pragma once

#include "platform/report/layout/layout.h"

namespace kestrane::report {

/// The room for bands on a page of the report, in millimetres: all but the margins and the headings and footers that always show.
/// Of a roll, of its greatest length. Less than 0 when those alone are too high.
[[nodiscard]] double altoDeCuerpo(const Layout& layout);

} // namespace kestrane::report
