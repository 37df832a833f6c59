#pragma once

#include "instalacion/esquema.h"
#include "platform/jet/traductor.h"

#include <QList>
#include <QString>

/// The schema written as statements of each engine.
///
/// All names are in lower case. On the servers every table has the hidden identity column `orden_`, which keeps the order in which
/// its rows were stored; on SQLite the row number does, so that no column is an INTEGER PRIMARY KEY there.
namespace kestrane::instalacion {

/// What makes the tables and indexes of `base` in an empty database, in this order.
[[nodiscard]] QList<QString> sentenciasDeCreacion(const BaseEsquema& base, jet::Motor motor);

/// What takes away the tables of `base` that are there, with their rows, and nothing else. Harmless when there are none.
[[nodiscard]] QList<QString> sentenciasDeBorrado(const BaseEsquema& base, jet::Motor motor);

} // namespace kestrane::instalacion
