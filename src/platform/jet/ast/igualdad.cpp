#include "platform/jet/ast/sentencia.h"

#include <algorithm>

namespace kestrane::jet::ast {

namespace {

bool iguales(const Unaria& a, const Unaria& b)
{
    return a.operador == b.operador && ast::iguales(a.operando, b.operando);
}

bool iguales(const Binaria& a, const Binaria& b)
{
    return a.operador == b.operador && ast::iguales(a.izquierda, b.izquierda) && ast::iguales(a.derecha, b.derecha);
}

bool iguales(const Parecido& a, const Parecido& b)
{
    return a.sentido == b.sentido && ast::iguales(a.valor, b.valor) && ast::iguales(a.patron, b.patron);
}

bool iguales(const Entre& a, const Entre& b)
{
    return a.sentido == b.sentido && ast::iguales(a.valor, b.valor) && ast::iguales(a.desde, b.desde) &&
           ast::iguales(a.hasta, b.hasta);
}

bool iguales(const EnLista& a, const EnLista& b)
{
    return a.sentido == b.sentido && ast::iguales(a.valor, b.valor) && ast::iguales(a.lista, b.lista);
}

bool iguales(const EnConsulta& a, const EnConsulta& b)
{
    return a.sentido == b.sentido && ast::iguales(a.valor, b.valor) && *a.consulta == *b.consulta;
}

bool iguales(const EsNulo& a, const EsNulo& b)
{
    return a.sentido == b.sentido && ast::iguales(a.valor, b.valor);
}

bool iguales(const Llamada& a, const Llamada& b)
{
    return a.funcion == b.funcion && a.asterisco == b.asterisco && ast::iguales(a.argumentos, b.argumentos);
}

bool iguales(const FuenteTabla& a, const FuenteTabla& b)
{
    return a == b;
}

bool iguales(const FuentePtr& a, const FuentePtr& b)
{
    return *a == *b;
}

bool iguales(const Union& a, const Union& b)
{
    return a.clase == b.clase && *a.izquierda == *b.izquierda && *a.derecha == *b.derecha && ast::iguales(a.condicion, b.condicion);
}

bool iguales(const Asterisco& a, const Asterisco& b)
{
    return a == b;
}

bool iguales(const ElementoExpresion& a, const ElementoExpresion& b)
{
    return a.alias == b.alias && ast::iguales(a.expresion, b.expresion);
}

// Leaves of an expression.
bool iguales(const Columna& a, const Columna& b)
{
    return a == b;
}

bool iguales(const Valor& a, const Valor& b)
{
    return a == b;
}

bool iguales(Nulo, Nulo)
{
    return true;
}

bool iguales(Logico a, Logico b)
{
    return a == b;
}

template<class Variante>
bool mismoDato(const Variante& a, const Variante& b)
{
    if (a.index() != b.index())
        return false;
    return std::visit([&]<class T>(const T& dato) { return iguales(dato, std::get<T>(b)); }, a);
}

} // namespace

bool iguales(const ExpresionPtr& a, const ExpresionPtr& b)
{
    return a && b ? *a == *b : !a && !b;
}

bool iguales(const std::vector<ExpresionPtr>& a, const std::vector<ExpresionPtr>& b)
{
    return std::ranges::equal(a, b, [](const ExpresionPtr& x, const ExpresionPtr& y) { return ast::iguales(x, y); });
}

bool operator==(const Expresion& a, const Expresion& b)
{
    return mismoDato(a.dato, b.dato);
}

bool operator==(const Fuente& a, const Fuente& b)
{
    return mismoDato(a.dato, b.dato);
}

bool operator==(const ElementoLista& a, const ElementoLista& b)
{
    return mismoDato(a.dato, b.dato);
}

bool operator==(const ClaveDeOrden& a, const ClaveDeOrden& b)
{
    return a.direccion == b.direccion && iguales(a.expresion, b.expresion);
}

bool operator==(const Consulta& a, const Consulta& b)
{
    const auto mismaFuente = [](const FuentePtr& x, const FuentePtr& y) { return iguales(x, y); };
    return a.filas == b.filas && iguales(a.limite, b.limite) && a.lista == b.lista &&
           std::ranges::equal(a.desde, b.desde, mismaFuente) && iguales(a.donde, b.donde) && iguales(a.grupos, b.grupos) &&
           iguales(a.teniendo, b.teniendo) && a.orden == b.orden;
}

bool operator==(const Insercion& a, const Insercion& b)
{
    return a.tabla == b.tabla && a.columnas == b.columnas && iguales(a.valores, b.valores);
}

bool operator==(const Asignacion& a, const Asignacion& b)
{
    return a.columna == b.columna && iguales(a.valor, b.valor);
}

bool operator==(const Modificacion& a, const Modificacion& b)
{
    return a.tabla == b.tabla && a.asignaciones == b.asignaciones && iguales(a.donde, b.donde);
}

bool operator==(const Borrado& a, const Borrado& b)
{
    return a.tabla == b.tabla && iguales(a.donde, b.donde);
}

} // namespace kestrane::jet::ast
