#include "platform/report/layout/nodo_expresion.h"

#include <algorithm>

namespace kestrane::report {

bool iguales(const NodoExpresion& a, const NodoExpresion& b)
{
    return a.clase == b.clase && a.literal == b.literal && a.indice == b.indice && a.funcion == b.funcion &&
           a.nombre.compare(b.nombre, Qt::CaseInsensitive) == 0 &&
           std::ranges::equal(a.hijos, b.hijos, [](const NodoPtr& x, const NodoPtr& y) { return iguales(*x, *y); });
}

Expresion expresionLiteral(const QString& texto, const LugarLayout& lugar)
{
    return Expresion{std::make_shared<const NodoExpresion>(NodoExpresion{.literal = texto}), lugar};
}

} // namespace kestrane::report
