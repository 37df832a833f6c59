#pragma once

#include "platform/jet/ast/consulta.h"

namespace kestrane::jet::ast {

/// A name as written, with its place.
struct Nombre
{
    QString texto;
    Lugar lugar;

    friend bool operator==(const Nombre&, const Nombre&) = default;
};

struct Insercion
{
    Nombre tabla;
    std::vector<Nombre> columnas; ///< empty: all, in the table's order
    std::vector<ExpresionPtr> valores;
};

struct Asignacion
{
    Nombre columna;
    ExpresionPtr valor;
};

struct Modificacion
{
    Nombre tabla;
    std::vector<Asignacion> asignaciones;
    ExpresionPtr donde;
};

struct Borrado
{
    Nombre tabla;
    ExpresionPtr donde;
};

using Sentencia = std::variant<Consulta, Insercion, Modificacion, Borrado>;

[[nodiscard]] bool operator==(const Insercion& a, const Insercion& b);
[[nodiscard]] bool operator==(const Asignacion& a, const Asignacion& b);
[[nodiscard]] bool operator==(const Modificacion& a, const Modificacion& b);
[[nodiscard]] bool operator==(const Borrado& a, const Borrado& b);

} // namespace kestrane::jet::ast
