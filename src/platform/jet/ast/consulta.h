#pragma once

#include "platform/jet/ast/expresion.h"

#include <optional>

namespace kestrane::jet::ast {

struct Fuente;
using FuentePtr = std::unique_ptr<const Fuente>;

/// A table of a FROM, under its own name or another.
struct FuenteTabla
{
    QString nombre;
    QString alias; ///< "" when there is none

    friend bool operator==(const FuenteTabla&, const FuenteTabla&) = default;
};

enum class ClaseUnion { Interior, Izquierda };

struct Union
{
    ClaseUnion clase = ClaseUnion::Interior;
    FuentePtr izquierda;
    FuentePtr derecha;
    ExpresionPtr condicion;
};

struct Fuente
{
    std::variant<FuenteTabla, Union> dato;
    Lugar lugar;
};

/// "*" or "t.*".
struct Asterisco
{
    QString tabla; ///< "" for all tables

    friend bool operator==(const Asterisco&, const Asterisco&) = default;
};

struct ElementoExpresion
{
    ExpresionPtr expresion;
    QString alias; ///< "" when there is none
};

struct ElementoLista
{
    std::variant<Asterisco, ElementoExpresion> dato;
    Lugar lugar;
};

enum class Direccion { Ascendente, Descendente };

struct ClaveDeOrden
{
    ExpresionPtr expresion;
    Direccion direccion = Direccion::Ascendente;
};

enum class Filas { Todas, Distintas };

struct Consulta
{
    Filas filas = Filas::Todas;
    ExpresionPtr limite; ///< of TOP: a whole number; nullptr when there is none
    std::vector<ElementoLista> lista;
    std::vector<FuentePtr> desde;
    ExpresionPtr donde;
    std::vector<ExpresionPtr> grupos;
    ExpresionPtr teniendo;
    std::vector<ClaveDeOrden> orden;
    Lugar lugar;
    int profundidad = 0; ///< levels of its deepest expression
};

[[nodiscard]] bool operator==(const Fuente& a, const Fuente& b);
[[nodiscard]] bool operator==(const ElementoLista& a, const ElementoLista& b);
[[nodiscard]] bool operator==(const ClaveDeOrden& a, const ClaveDeOrden& b);
[[nodiscard]] bool operator==(const Consulta& a, const Consulta& b);

} // namespace kestrane::jet::ast
