#pragma once

#include "platform/database/entorno_datos.h"
#include "platform/jet/tipos.h"

#include <memory>

namespace kestrane::database::conformidad {

/// Data sources of the two databases under test.
enum class Base { Tienda, Listados };
[[nodiscard]] inline QString dsn(Base base)
{
    return base == Base::Tienda ? QStringLiteral("TiendaKestrane") : QStringLiteral("ListKestrane");
}

/// One engine as the conformance tests see it: two empty databases, made anew for each test, and the ways in which the engine
/// differs, each as a named function with its reason.
class ContextoMotor
{
public:
    virtual ~ContextoMotor() = default;

    /// Options with which both data sources open on this engine, with the settings of Spain.
    [[nodiscard]] virtual OpcionesDatos opciones() = 0;
    /// Makes an empty table as `crear-tienda` does, with its hidden order if the engine needs one. `orden` and `identidad` are not
    /// looked at; with `tieneClavesUnicas` the first column is a unique key.
    virtual void crearTabla(Base base, const jet::Tabla& tabla) = 0;
    /// Locks a table against writing, as another program does, until what it returns goes.
    [[nodiscard]] virtual std::shared_ptr<void> bloquea(Base base, const QString& tabla) = 0;
};

/// The engine that the program of tests was linked with.
[[nodiscard]] std::unique_ptr<ContextoMotor> creaContexto();

} // namespace kestrane::database::conformidad
