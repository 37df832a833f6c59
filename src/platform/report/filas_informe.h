#pragma once

#include "platform/report/layout/layout.h"
#include "platform/runtime/valor.h"

#include <QStringList>

#include <vector>

namespace kestrane::report {

/// The rows of one report, its own copy: sorted, cut into groups, all aggregates reckoned. Walked by place, from 0.
class FilasInforme
{
public:
    virtual ~FilasInforme() = default;

    [[nodiscard]] virtual const QStringList& columnas() const = 0;
    [[nodiscard]] virtual qsizetype filas() const = 0;
    /// A column of a row. Reading rows one behind the other is fast, elsewhere it seeks.
    [[nodiscard]] virtual Valor valor(qsizetype fila, int columna) const = 0;
    /// How many groups begin with this row: 0 none, 1 the innermost alone, Layout::grupos.size() all. The first row begins all.
    [[nodiscard]] virtual int gruposQueEmpiezan(qsizetype fila) const = 0;
    /// The value of Layout::agregados[indice] for the groups (or the report) in which the row stands; Acumulado up to and with it.
    [[nodiscard]] virtual Valor agregado(qsizetype fila, int indice) const = 0;
};

} // namespace kestrane::report
