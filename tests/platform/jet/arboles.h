#pragma once

#include "platform/jet/ast/sentencia.h"

/// Trees written as nested calls, for tests that say what a text means.
namespace kestrane::jet::arboles {

using namespace kestrane::jet::ast;

template<class Dato>
[[nodiscard]] ExpresionPtr hoja(Dato dato)
{
    return std::make_unique<const Expresion>(Expresion{std::move(dato), {}});
}

[[nodiscard]] inline ExpresionPtr col(const QString& nombre)
{
    return hoja(Columna{{}, nombre});
}
[[nodiscard]] inline ExpresionPtr col(const QString& tabla, const QString& nombre)
{
    return hoja(Columna{tabla, nombre});
}
/// A literal of the given number in the statement.
[[nodiscard]] inline ExpresionPtr entero(double numero, int literal = 0)
{
    return hoja(ast::Valor{Literal::Clase::Entero, numero, {}, {}, literal});
}
[[nodiscard]] inline ExpresionPtr doble(double numero, int literal = 0)
{
    return hoja(ast::Valor{Literal::Clase::Doble, numero, {}, {}, literal});
}
[[nodiscard]] inline ExpresionPtr texto(const QString& contenido, int literal = 0)
{
    return hoja(ast::Valor{Literal::Clase::Texto, 0, {}, contenido, literal});
}
[[nodiscard]] inline ExpresionPtr fecha(int anio, int mes, int dia, int literal = 0)
{
    return hoja(ast::Valor{Literal::Clase::Fecha, 0, *Fecha::deCalendario(anio, mes, dia), {}, literal});
}
[[nodiscard]] inline ExpresionPtr nulo()
{
    return hoja(Nulo{});
}
[[nodiscard]] inline ExpresionPtr logico(bool valor)
{
    return hoja(Logico{valor});
}
[[nodiscard]] inline ExpresionPtr no(ExpresionPtr operando)
{
    return hoja(Unaria{OperadorUnario::No, std::move(operando)});
}
[[nodiscard]] inline ExpresionPtr menos(ExpresionPtr operando)
{
    return hoja(Unaria{OperadorUnario::Menos, std::move(operando)});
}
[[nodiscard]] inline ExpresionPtr mas(ExpresionPtr operando)
{
    return hoja(Unaria{OperadorUnario::Mas, std::move(operando)});
}
[[nodiscard]] inline ExpresionPtr op(ExpresionPtr izquierda, OperadorBinario operador, ExpresionPtr derecha)
{
    return hoja(Binaria{operador, std::move(izquierda), std::move(derecha)});
}
[[nodiscard]] inline ExpresionPtr y(ExpresionPtr a, ExpresionPtr b)
{
    return op(std::move(a), OperadorBinario::Y, std::move(b));
}
[[nodiscard]] inline ExpresionPtr o(ExpresionPtr a, ExpresionPtr b)
{
    return op(std::move(a), OperadorBinario::O, std::move(b));
}
[[nodiscard]] inline ExpresionPtr igual(ExpresionPtr a, ExpresionPtr b)
{
    return op(std::move(a), OperadorBinario::Igual, std::move(b));
}
[[nodiscard]] inline ExpresionPtr suma(ExpresionPtr a, ExpresionPtr b)
{
    return op(std::move(a), OperadorBinario::Suma, std::move(b));
}
[[nodiscard]] inline ExpresionPtr resta(ExpresionPtr a, ExpresionPtr b)
{
    return op(std::move(a), OperadorBinario::Resta, std::move(b));
}
[[nodiscard]] inline ExpresionPtr por(ExpresionPtr a, ExpresionPtr b)
{
    return op(std::move(a), OperadorBinario::Producto, std::move(b));
}
[[nodiscard]] inline ExpresionPtr parecido(ExpresionPtr valor, ExpresionPtr patron, Sentido sentido = Sentido::Afirmado)
{
    return hoja(Parecido{sentido, std::move(valor), std::move(patron)});
}
[[nodiscard]] inline ExpresionPtr entre(ExpresionPtr valor, ExpresionPtr desde, ExpresionPtr hasta,
                                        Sentido sentido = Sentido::Afirmado)
{
    return hoja(Entre{sentido, std::move(valor), std::move(desde), std::move(hasta)});
}
[[nodiscard]] inline ExpresionPtr esNulo(ExpresionPtr valor, Sentido sentido = Sentido::Afirmado)
{
    return hoja(EsNulo{sentido, std::move(valor)});
}

template<class... Elementos>
[[nodiscard]] std::vector<ExpresionPtr> lista(Elementos... elementos)
{
    std::vector<ExpresionPtr> todos;
    (todos.push_back(std::move(elementos)), ...);
    return todos;
}
[[nodiscard]] inline ExpresionPtr en(ExpresionPtr valor, std::vector<ExpresionPtr> elementos, Sentido sentido = Sentido::Afirmado)
{
    return hoja(EnLista{sentido, std::move(valor), std::move(elementos)});
}
[[nodiscard]] inline ExpresionPtr en(ExpresionPtr valor, Consulta consulta, Sentido sentido = Sentido::Afirmado)
{
    return hoja(EnConsulta{sentido, std::move(valor), std::make_unique<const Consulta>(std::move(consulta))});
}
template<class... Argumentos>
[[nodiscard]] ExpresionPtr llama(const QString& funcion, Argumentos... argumentos)
{
    return hoja(Llamada{funcion, false, lista(std::move(argumentos)...)});
}
[[nodiscard]] inline ExpresionPtr cuentaTodo()
{
    return hoja(Llamada{QStringLiteral("count"), true, {}});
}

[[nodiscard]] inline FuentePtr tabla(const QString& nombre, const QString& alias = {})
{
    return std::make_unique<const Fuente>(Fuente{FuenteTabla{nombre, alias}, {}});
}
[[nodiscard]] inline FuentePtr une(ClaseUnion clase, FuentePtr izquierda, FuentePtr derecha, ExpresionPtr condicion)
{
    return std::make_unique<const Fuente>(Fuente{Union{clase, std::move(izquierda), std::move(derecha), std::move(condicion)}, {}});
}
[[nodiscard]] inline ElementoLista todo(const QString& tabla = {})
{
    return {Asterisco{tabla}, {}};
}
[[nodiscard]] inline ElementoLista elem(ExpresionPtr expresion, const QString& alias = {})
{
    return {ElementoExpresion{std::move(expresion), alias}, {}};
}

/// "select LISTA from DESDE"; the rest is added by hand.
template<class... Elementos>
[[nodiscard]] Consulta elige(FuentePtr desde, Elementos... elementos)
{
    Consulta consulta;
    consulta.desde.push_back(std::move(desde));
    (consulta.lista.push_back(std::move(elementos)), ...);
    return consulta;
}

} // namespace kestrane::jet::arboles
