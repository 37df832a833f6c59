#pragma once

#include "platform/runtime/fecha.h"

#include <sql.h>
#include <sqlext.h>

#include <optional>

namespace kestrane::database::odbc {

[[nodiscard]] inline SQL_TIMESTAMP_STRUCT marcaDeTiempo(Fecha fecha)
{
    const auto [anio, mes, dia] = fecha.calendario();
    SQL_TIMESTAMP_STRUCT marca{};
    marca.year = static_cast<SQLSMALLINT>(anio);
    marca.month = static_cast<SQLUSMALLINT>(mes);
    marca.day = static_cast<SQLUSMALLINT>(dia);
    marca.hour = static_cast<SQLUSMALLINT>(fecha.hora());
    marca.minute = static_cast<SQLUSMALLINT>(fecha.minuto());
    marca.second = static_cast<SQLUSMALLINT>(fecha.segundo());
    return marca;
}

/// Nothing for a day that a Fecha does not know (year 0, infinity). Parts of a second are dropped.
[[nodiscard]] inline std::optional<Fecha> fechaDe(const SQL_TIMESTAMP_STRUCT& marca)
{
    return Fecha::deCalendario(marca.year, marca.month, marca.day, marca.hour, marca.minute, marca.second);
}

} // namespace kestrane::database::odbc
