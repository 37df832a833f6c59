#pragma once

#include "platform/jet/tipos.h"
#include "platform/jet/traductor.h"

#include <QByteArray>

#include <span>

/// The statements behind AddNew, Update and Delete of a recordset, in the engine's dialect with `?` marks.
namespace kestrane::database {

/// `insert into tabla (columnas) values (?, ..)`; `columnas` are indices into tabla.columnas. With none, a row of defaults.
[[nodiscard]] QByteArray sqlInsercion(jet::Motor motor, const jet::Tabla& tabla, std::span<const int> columnas);
/// `update tabla set columnas = ? where identidad = ?`.
[[nodiscard]] QByteArray sqlModificacion(jet::Motor motor, const jet::Tabla& tabla, std::span<const int> columnas);
/// `delete from tabla where identidad = ?`.
[[nodiscard]] QByteArray sqlBorrado(jet::Motor motor, const jet::Tabla& tabla);
/// The type of the identity: that of the column it names; a hidden number, which may be beyond 32 bits, is a double.
[[nodiscard]] jet::TipoColumna tipoDeIdentidad(const jet::Tabla& tabla);

} // namespace kestrane::database
