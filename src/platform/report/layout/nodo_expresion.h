#pragma once

#include "platform/report/layout/expresion.h"

namespace kestrane::report {

struct FuncionExpresion;

enum class ClaseNodo { Literal, Columna, Agregado, Pagina, Paginas, Fila, Llamada };

/// What an expression is made of. Operators are calls of functions too.
struct NodoExpresion
{
    ClaseNodo clase = ClaseNodo::Literal;
    Valor literal = {};
    QString nombre = {}; ///< of a column, as the layout spells it
    int indice = 0;      ///< of an aggregate, in Layout::agregados
    const FuncionExpresion* funcion = nullptr;
    std::vector<std::shared_ptr<const NodoExpresion>> hijos = {};
};
using NodoPtr = std::shared_ptr<const NodoExpresion>;

/// The same tree; column names are compared without minding case.
[[nodiscard]] bool iguales(const NodoExpresion& a, const NodoExpresion& b);

/// An expression that always gives `texto`.
[[nodiscard]] Expresion expresionLiteral(const QString& texto, const LugarLayout& lugar);

} // namespace kestrane::report
