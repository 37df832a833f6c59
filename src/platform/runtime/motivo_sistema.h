#pragma once

#include <QIODevice>
#include <QString>

#include <system_error>

/// Why the system refused a file, a folder or a stream, as words for the middle of a Spanish sentence: "no existe", "es una
/// carpeta", "no queda sitio en el disco". What has no words here is quoted as the system says it.
namespace kestrane {

[[nodiscard]] QString motivoDe(const std::error_code& error);

/// Of the operation of `dispositivo` that failed last.
[[nodiscard]] QString motivoDe(const QIODevice& dispositivo);

/// Of the error text of a class of Qt that is no device.
[[nodiscard]] QString motivoDeTexto(const QString& texto);

} // namespace kestrane
