#pragma once

#include "instalacion/esquema.h"

/// One short call per kind of column, so that a table reads as a table.
namespace kestrane::instalacion::tablas {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

constexpr ColumnaEsquema texto(const char* nombre, int ancho)
{
    return {QLatin1StringView{nombre}, TipoColumna::Texto, ancho, Nulos::Admite};
}

constexpr ColumnaEsquema claveTexto(const char* nombre, int ancho)
{
    return {QLatin1StringView{nombre}, TipoColumna::Texto, ancho, Nulos::NoAdmite};
}

constexpr ColumnaEsquema memo(const char* nombre)
{
    return {QLatin1StringView{nombre}, TipoColumna::Memo, 0, Nulos::Admite};
}

constexpr ColumnaEsquema largo(const char* nombre)
{
    return {QLatin1StringView{nombre}, TipoColumna::Entero32, 0, Nulos::Admite};
}

/// A number that is never null: keys and what `not in` looks through.
constexpr ColumnaEsquema clave(const char* nombre)
{
    return {QLatin1StringView{nombre}, TipoColumna::Entero32, 0, Nulos::NoAdmite};
}

constexpr ColumnaEsquema corto(const char* nombre)
{
    return {QLatin1StringView{nombre}, TipoColumna::Entero16, 0, Nulos::Admite};
}

constexpr ColumnaEsquema doble(const char* nombre)
{
    return {QLatin1StringView{nombre}, TipoColumna::Doble, 0, Nulos::Admite};
}

constexpr ColumnaEsquema fecha(const char* nombre)
{
    return {QLatin1StringView{nombre}, TipoColumna::FechaHora, 0, Nulos::Admite};
}

/// -1 or 0, never null, 0 when not written.
constexpr ColumnaEsquema logico(const char* nombre)
{
    return {QLatin1StringView{nombre}, TipoColumna::SiNo, 0, Nulos::NoAdmite};
}

} // namespace kestrane::instalacion::tablas
