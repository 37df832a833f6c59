#pragma once

#include "platform/jet/ast/consulta.h"
#include "platform/jet/forma.h"
#include "platform/jet/tipos.h"

#include <QString>

#include <functional>
#include <memory>
#include <variant>
#include <vector>

/// The bound tree: a statement whose names are resolved and whose expressions have types. It is a value of its own: it points at
/// the catalogue's tables and at nothing of the syntax tree. What the dialect leaves implicit (conversions, conditions used as
/// values, columns of `*`, the order of rows) stands in it as nodes, so that a renderer only writes.
namespace kestrane::jet::enlazado {

using ast::ClaseUnion;
using ast::Direccion;
using ast::Filas;
using ast::Sentido;

struct Expresion;
struct Consulta;

using ExpresionPtr = std::unique_ptr<Expresion>;
using ConsultaPtr = std::unique_ptr<Consulta>;

/// A column of one of the statement's tables: indices into Sentencia::tablas and Tabla::columnas.
struct Columna
{
    int fuente = 0;
    int columna = 0;

    friend bool operator==(const Columna&, const Columna&) = default;
};

/// A text column that rows are grouped by, as the oldest row of the group spells it.
struct PrimeraGrafia
{
    Columna columna;
};

/// A literal; its node's type says what it is turned into.
struct Parametro
{
    int literal = 0;
    bool negado = false;
    int ancho = 0;
    QString columna; ///< what it is written to
};

struct Nulo
{
};

/// true or false as a number.
struct Constante
{
    bool valor = false;
};

enum class OperadorAritmetico { Suma, Resta, Producto, Division, DivisionEntera, Resto };

struct Aritmetica
{
    OperadorAritmetico operador = OperadorAritmetico::Suma;
    ExpresionPtr izquierda;
    ExpresionPtr derecha;
};

struct CambioDeSigno
{
    ExpresionPtr operando;
};

/// Two texts joined, Null counting as the empty text.
struct TextosUnidos
{
    ExpresionPtr izquierda;
    ExpresionPtr derecha;
};

/// A number, flag or date as the platform writes it.
struct ComoTexto
{
    ExpresionPtr operando;
};

enum class ParteDeFecha { Anio, Mes, Dia, Hora };

struct Parte
{
    ParteDeFecha parte = ParteDeFecha::Mes;
    ExpresionPtr fecha;
};

enum class FuncionAgregada { Suma, Cuenta, Maximo, Minimo, Media };

struct Agregado
{
    FuncionAgregada funcion = FuncionAgregada::Cuenta;
    ExpresionPtr operando; ///< nullptr for count(*)
};

/// A computed value on its way into a column of the node's type, which may be too narrow for it.
struct Cabe
{
    ExpresionPtr operando;
    QString columna;
    int ancho = 0; ///< characters of a text
};

/// A condition used as a value: -1, 0 or Null.
struct ComoValor
{
    ExpresionPtr condicion;
};

// Conditions.

enum class OperadorLogico { Y, O };

struct Logica
{
    OperadorLogico operador = OperadorLogico::Y;
    ExpresionPtr izquierda;
    ExpresionPtr derecha;
};

struct No
{
    ExpresionPtr operando;
};

/// How values are compared; both sides of a comparison are of one family.
enum class Familia { Numero, Texto, Fecha };

enum class OperadorComparacion { Igual, Distinto, Menor, MenorIgual, Mayor, MayorIgual };

struct Comparacion
{
    OperadorComparacion operador = OperadorComparacion::Igual;
    Familia familia = Familia::Numero;
    ExpresionPtr izquierda;
    ExpresionPtr derecha;
};

struct Parecido
{
    Sentido sentido = Sentido::Afirmado;
    ExpresionPtr valor;
    ExpresionPtr patron;
};

struct Entre
{
    Sentido sentido = Sentido::Afirmado;
    Familia familia = Familia::Numero;
    ExpresionPtr valor;
    ExpresionPtr desde;
    ExpresionPtr hasta;
};

struct EnLista
{
    Sentido sentido = Sentido::Afirmado;
    Familia familia = Familia::Numero;
    ExpresionPtr valor;
    std::vector<ExpresionPtr> lista;
};

struct EnConsulta
{
    Sentido sentido = Sentido::Afirmado;
    Familia familia = Familia::Numero;
    ExpresionPtr valor;
    ConsultaPtr consulta;
};

struct EsNulo
{
    Sentido sentido = Sentido::Afirmado;
    ExpresionPtr valor;
};

struct Expresion
{
    using Dato =
        std::variant<Columna, PrimeraGrafia, Parametro, Nulo, Constante, Aritmetica, CambioDeSigno, TextosUnidos, ComoTexto, Parte,
                     Agregado, Cabe, ComoValor, Logica, No, Comparacion, Parecido, Entre, EnLista, EnConsulta, EsNulo>;

    Dato dato;
    TipoColumna tipo = TipoColumna::SiNo;
    ast::Lugar lugar;

    /// Whether it is true or false rather than a value.
    [[nodiscard]] bool esCondicion() const;
    [[nodiscard]] bool esNulo() const { return std::holds_alternative<Nulo>(dato); }
    [[nodiscard]] bool esParametro() const { return std::holds_alternative<Parametro>(dato); }
};

[[nodiscard]] Familia familiaDe(TipoColumna tipo);
[[nodiscard]] bool esTexto(TipoColumna tipo);
[[nodiscard]] bool esEntero(TipoColumna tipo);

template<class Dato>
[[nodiscard]] ExpresionPtr nodo(Dato dato, TipoColumna tipo, ast::Lugar lugar)
{
    return std::make_unique<Expresion>(Expresion{std::move(dato), tipo, lugar});
}

/// The column that a node shows, as it stands or in its oldest spelling; nullptr for any other node.
[[nodiscard]] const Columna* columnaMostrada(const Expresion& expresion);

/// Whether both say the same of the same columns. A literal is equal to itself alone: statements that differ in it share one
/// translation. A sub-query is equal to none.
[[nodiscard]] bool iguales(const Expresion& a, const Expresion& b);
/// The same, but for what the literals are.
[[nodiscard]] bool mismaForma(const Expresion& a, const Expresion& b);

/// Calls `visita` with each node right below `expresion`; the expressions of a sub-query count among them.
void recorreHijos(const Expresion& expresion, const std::function<void(const Expresion&)>& visita);

/// Whether `prueba` holds for the expression or for anything below it.
[[nodiscard]] bool alguna(const Expresion& expresion, const std::function<bool(const Expresion&)>& prueba);
/// Whether it holds for any expression of the query.
[[nodiscard]] bool alguna(const Consulta& consulta, const std::function<bool(const Expresion&)>& prueba);

struct Fuente;
using FuentePtr = std::unique_ptr<Fuente>;

struct Union
{
    ClaseUnion clase = ClaseUnion::Interior;
    FuentePtr izquierda;
    FuentePtr derecha;
    ExpresionPtr condicion;
};

/// A table of a FROM (index into Sentencia::tablas) or a join.
struct Fuente
{
    std::variant<int, Union> dato;
};

struct Salida
{
    ExpresionPtr expresion;
    QString nombre;
    int ancho = 0;
    bool deAsterisco = false;
};

/// A sort key: an expression, or the place (from 1) of a column of the result.
struct Clave
{
    ExpresionPtr expresion; ///< nullptr when `salida` says it
    int salida = 0;
    Direccion direccion = Direccion::Ascendente;
};

/// What rows with equal keys are sorted by in the end.
enum class OrdenFinal {
    Ninguno,   ///< one row, or a sub-query whose order says nothing
    PorFilas,  ///< as the rows were stored, table by table
    PorGrupos, ///< by the columns of GROUP BY
    PorLista,  ///< by the result's columns
};

struct Consulta
{
    Filas filas = Filas::Todas;
    ExpresionPtr limite;
    std::vector<Salida> lista;
    std::vector<FuentePtr> desde;
    std::vector<int> fuentes; ///< all tables of `desde`, in the order of the text
    ExpresionPtr donde;
    std::vector<ExpresionPtr> grupos;
    ExpresionPtr teniendo;
    std::vector<Clave> orden;
    OrdenFinal ordenFinal = OrdenFinal::PorFilas;
};

struct Asignacion
{
    int columna = 0;
    ExpresionPtr valor;
};

/// The written table is the first of Sentencia::tablas.
struct Insercion
{
    std::vector<Asignacion> asignaciones;
};

struct Modificacion
{
    std::vector<Asignacion> asignaciones;
    ExpresionPtr donde;
};

struct Borrado
{
    ExpresionPtr donde;
};

struct Sentencia
{
    std::variant<Consulta, Insercion, Modificacion, Borrado> dato;
    std::vector<const Tabla*> tablas; ///< every table that the statement names, once for each place
};

} // namespace kestrane::jet::enlazado
