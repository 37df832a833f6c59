#pragma once

#include "platform/jet/forma.h"

#include <QString>

#include <memory>
#include <variant>
#include <vector>

/// The syntax tree: what a statement says, before any name is looked up. Nodes are immutable once made, own what stands below them,
/// remember their place in the text, and are equal when they say the same (places do not count).
namespace kestrane::jet::ast {

struct Expresion;
struct Consulta;

using ExpresionPtr = std::unique_ptr<const Expresion>;
using ConsultaPtr = std::unique_ptr<const Consulta>;

/// Where something stands in the statement's text.
struct Lugar
{
    int posicion = 0;
    int longitud = 0;

    friend bool operator==(const Lugar&, const Lugar&) { return true; } // a place says nothing
};

struct Columna
{
    QString tabla; ///< name or alias before the point, "" when there is none
    QString nombre;

    friend bool operator==(const Columna&, const Columna&) = default;
};

struct Valor
{
    Literal::Clase clase = Literal::Clase::Entero;
    double numero = 0;
    Fecha fecha;
    QString texto;
    int literal = 0; ///< which literal of the statement, in the order of the text

    friend bool operator==(const Valor&, const Valor&) = default;
};

struct Nulo
{
    friend bool operator==(Nulo, Nulo) = default;
};

struct Logico
{
    bool valor = false;

    friend bool operator==(Logico, Logico) = default;
};

enum class OperadorUnario { No, Menos, Mas };

struct Unaria
{
    OperadorUnario operador = OperadorUnario::No;
    ExpresionPtr operando;
};

enum class OperadorBinario {
    O,
    Y,
    Igual,
    Distinto,
    Menor,
    MenorIgual,
    Mayor,
    MayorIgual,
    Une,
    Suma,
    Resta,
    Resto,
    DivisionEntera,
    Producto,
    Division,
};

struct Binaria
{
    OperadorBinario operador = OperadorBinario::Y;
    ExpresionPtr izquierda;
    ExpresionPtr derecha;
};

/// Whether a test is turned round by NOT: "x not in (...)".
enum class Sentido { Afirmado, Negado };

struct Parecido
{
    Sentido sentido = Sentido::Afirmado;
    ExpresionPtr valor;
    ExpresionPtr patron;
};

struct Entre
{
    Sentido sentido = Sentido::Afirmado;
    ExpresionPtr valor;
    ExpresionPtr desde;
    ExpresionPtr hasta;
};

struct EnLista
{
    Sentido sentido = Sentido::Afirmado;
    ExpresionPtr valor;
    std::vector<ExpresionPtr> lista;
};

struct EnConsulta
{
    Sentido sentido = Sentido::Afirmado;
    ExpresionPtr valor;
    ConsultaPtr consulta;
};

struct EsNulo
{
    Sentido sentido = Sentido::Afirmado;
    ExpresionPtr valor;
};

struct Llamada
{
    QString funcion;
    bool asterisco = false; ///< "count(*)"
    std::vector<ExpresionPtr> argumentos;
};

struct Expresion
{
    using Dato = std::variant<Columna, Valor, Nulo, Logico, Unaria, Binaria, Parecido, Entre, EnLista, EnConsulta, EsNulo, Llamada>;

    Dato dato;
    Lugar lugar;
    int profundidad = 1; ///< levels of this tree
};

[[nodiscard]] bool operator==(const Expresion& a, const Expresion& b);

/// Both absent, or both there and equal.
[[nodiscard]] bool iguales(const ExpresionPtr& a, const ExpresionPtr& b);
[[nodiscard]] bool iguales(const std::vector<ExpresionPtr>& a, const std::vector<ExpresionPtr>& b);

} // namespace kestrane::jet::ast
