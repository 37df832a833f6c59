#pragma once

#include "platform/database/conexion.h"

#include <optional>

namespace kestrane {

/// What a sibling program of the suite asks this copy of the program for when it starts it: a row of the shop's table `pasardatos`,
/// a queue of which a start takes one row.
struct Entrega
{
    QString indice;
    QString codigo; ///< of a section of the menu

    friend bool operator==(const Entrega&, const Entrega&) = default;
};

/// The first row, by `indice`, for the copy with the key `clave`; nothing when there is none. Reads `indice` and `texto1`.
[[nodiscard]] std::optional<Entrega> primeraEntrega(Conexion& tienda, const QString& clave);

/// Deletes that row, if there is one.
void borraPrimeraEntrega(Conexion& tienda, const QString& clave);

} // namespace kestrane
