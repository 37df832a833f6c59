#pragma once

#include "lote/estado_de_salida.h"
#include "platform/runtime/avisos.h"

#include <QIODevice>
#include <QStringList>

namespace kestrane::lote {

/// Whether the work of a command line (the program's name first) needs an application that paints.
[[nodiscard]] bool necesitaPintar(const QStringList& argumentos);

/// `listados-lote`: reads the command line, works, writes results on `salida` and one Spanish sentence per failure on `errores`.
/// Returns the exit status.
int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, QIODevice& errores,
                    DestinoErrores destino = DestinoErrores::Fichero);

} // namespace kestrane::lote
