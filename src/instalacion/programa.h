#pragma once

#include "platform/runtime/avisos.h"

#include <QString>
#include <QStringList>

class QIODevice;

namespace kestrane::instalacion {

// The exit status of `crear-tienda`.
inline constexpr int SalidaBien = 0;
inline constexpr int SalidaError = 1; ///< it could not be done: files are as they were, tables on a server may be gone (obra.h)
inline constexpr int SalidaUso = 2;   ///< the command line makes no sense

/// Runs the program: what was made goes to `salida`, why not to `errores`, one sentence each, in UTF-8. `carpetaPrograma` is where
/// the executable stands. Where `destino` is a terminal, `errores` shows that work which takes long goes on.
int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, QIODevice& errores,
                    DestinoErrores destino = DestinoErrores::Fichero);

/// The same, with whatever there is to tell on `avisos`.
int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, Avisos& avisos);

} // namespace kestrane::instalacion
