#pragma once

#include <QFileDevice>
#include <QIODevice>
#include <QStringView>

#include <functional>

namespace kestrane {

/// What a program does once its standard streams are open; it returns the exit status.
using TrabajoConSalida = std::function<int(QIODevice& salida, QIODevice& errores)>;

/// Exit status of a program that could not do its work.
inline constexpr int EstadoDeFallo = 1;

/// Opens the standard output and the standard error and runs `trabajo` with them, as below. EstadoDeFallo when one of them is
/// closed.
int conSalidaEstandar(QStringView programa, const TrabajoConSalida& trabajo);

/// Runs `trabajo` and sends what it wrote on `salida`. An output that does not take all of it, and an exception that rises to here,
/// is one Spanish sentence on `errores`, behind "programa: ", and EstadoDeFallo; otherwise the status of `trabajo`.
int conSalida(QStringView programa, QFileDevice& salida, QIODevice& errores, const TrabajoConSalida& trabajo);

} // namespace kestrane
