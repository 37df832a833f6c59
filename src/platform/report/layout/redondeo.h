#pragma once

#include <QString>

namespace kestrane::report {

inline constexpr int DecimalesMaximos = 10;

/// `numero` with exactly `decimales` decimals and a point, no thousands marks, "-" before a negative that is not 0 as written.
/// Halves go away from 0, judged on the 15 digits that the platform shows: 2.675 gives "2.68". `numero` is finite.
[[nodiscard]] QString conDecimales(double numero, int decimales);

/// The same as a number.
[[nodiscard]] double redondeado(double numero, int decimales);

} // namespace kestrane::report
