#pragma once

#include <string_view>

namespace kestrane::database {

/// True when `texto` is what `patron` describes: `%` any run of characters, `_` one character, everything else itself, case ignored
/// beyond ASCII too. There is no escape. UTF-8.
[[nodiscard]] bool casaPatron(std::string_view patron, std::string_view texto);

} // namespace kestrane::database
