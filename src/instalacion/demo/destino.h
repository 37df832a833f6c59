#pragma once

#include "platform/runtime/valor.h"

#include <QLatin1StringView>

#include <span>

namespace kestrane::demo {

/// A table as the demo shop writes it: its name and the columns, in the order in which the values of a row come.
struct TablaDemo
{
    QLatin1StringView nombre;
    std::span<const QLatin1StringView> columnas;
};

/// Where the rows of a demo shop go. Rows of one table arrive in the order in which they are to be stored; rows of different tables
/// come mixed.
class Destino
{
public:
    virtual ~Destino() = default;

    /// One row: as many values as `tabla` has columns. `tabla` is one of the objects of tablas.h, always the same for one table.
    virtual void fila(const TablaDemo& tabla, std::span<const Valor> valores) = 0;
};

} // namespace kestrane::demo
