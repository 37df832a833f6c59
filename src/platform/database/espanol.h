#pragma once

#include <QString>

#include <string_view>

/// The project's rules for texts: case is ignored, beyond ASCII too; accents and trailing blanks are significant; ñ stands between
/// n and o, accented letters beside their base letter. The order is that of the Spanish collation of the servers (Unicode
/// collation, first and second level), whole for what Spanish texts hold; beyond Latin letters characters follow their code.
namespace kestrane::database::espanol {

/// Less than, equal to or greater than 0 as `a` sorts before, with or behind `b`. UTF-8; bytes that are none sort last.
[[nodiscard]] int compara(std::string_view a, std::string_view b);
[[nodiscard]] int compara(QStringView a, QStringView b);

/// True when the two do not differ but in case.
[[nodiscard]] inline bool iguales(std::string_view a, std::string_view b)
{
    return compara(a, b) == 0;
}
[[nodiscard]] inline bool iguales(QStringView a, QStringView b)
{
    return compara(a, b) == 0;
}

} // namespace kestrane::database::espanol
