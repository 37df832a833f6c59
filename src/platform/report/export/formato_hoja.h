#pragma once

#include "platform/report/layout/formato.h"

#include <QByteArray>

#include <optional>

/// What values become in a spreadsheet.
namespace kestrane::report {

/// How a cell shows a value; "" for the sheet's own way.
[[nodiscard]] QByteArray formatoDeHoja(const Valor& valor, const FormatoValor& formato, const ConfiguracionRegional& regional);

/// A number, or a date as its serial number. Nothing for what a sheet holds as text: texts, flags, days before March of 1900,
/// which sheets count otherwise, and what is no number at all.
[[nodiscard]] std::optional<double> numeroDeHoja(const Valor& valor);

/// A text as long as a cell takes it, without what its file cannot hold.
[[nodiscard]] QString textoDeHoja(const QString& texto);

/// The name of a sheet: at most 31 characters, `final` among them, none of those that sheets do not take.
[[nodiscard]] QString nombreDeHoja(const QString& titulo, const QString& final = {});

} // namespace kestrane::report
