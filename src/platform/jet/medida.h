#pragma once

#include "platform/jet/enlazado.h"

namespace kestrane::jet {

/// How much of an engine a part of a statement takes once it is written. SQLite sets the bounds of the first two and MariaDB that
/// of the third; a statement is held to all of them on every engine, so that what runs on one runs on the others.
struct Medida
{
    int abiertos = 1;    ///< symbols that a parser holds at most while it reads the part
    int altura = 1;      ///< levels of the expression
    qint64 escritos = 1; ///< columns, literals and operators, as often as they are written
};

/// The measure of one expression, parts of sub-queries included; refuses, by throwing a Rechazo, what is past limites.h.
[[nodiscard]] Medida medida(const enlazado::Expresion& expresion);

/// Refuses a statement that is past the measures of limites.h, by throwing a Rechazo.
void compruebaMedida(const enlazado::Sentencia& una);

} // namespace kestrane::jet
