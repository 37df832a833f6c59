#pragma once

#include "platform/jet/tipos.h"

#include <QLatin1StringView>
#include <QStringView>

#include <span>

/// The databases that the programs work on, as data: what `crear-tienda` makes, the demo shops fill and the tests compare with.
namespace kestrane::instalacion {

enum class Nulos { Admite, NoAdmite };

/// A column. Names have their main spelling; the databases hold them in lower case.
struct ColumnaEsquema
{
    QLatin1StringView nombre;
    jet::TipoColumna tipo = jet::TipoColumna::Texto;
    int ancho = 0; ///< characters of a Texto, else 0
    Nulos nulos = Nulos::Admite;
};

/// A table with its keys. Indexes stand on one column each: rows of one value then keep the order in which they were stored.
struct TablaEsquema
{
    QLatin1StringView nombre;
    std::span<const ColumnaEsquema> columnas;
    QLatin1StringView claveUnica;                 ///< the column that names a row among all others; empty when there is none
    std::span<const QLatin1StringView> indices{}; ///< further indexed columns, not unique
};

/// A database: its data source name, which is its file's name too, and its tables.
struct BaseEsquema
{
    QLatin1StringView dsn;
    std::span<const TablaEsquema> tablas;

    /// The table of that name, case ignored, or nullptr.
    [[nodiscard]] const TablaEsquema* tabla(QStringView buscada) const;
};

/// The shop's database, "TiendaKestrane".
[[nodiscard]] const BaseEsquema& baseTienda();
/// The reports database, "ListKestrane".
[[nodiscard]] const BaseEsquema& baseListados();

} // namespace kestrane::instalacion
