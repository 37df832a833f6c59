#pragma once

#include "platform/database/entorno_datos.h"

#include <memory>

namespace kestrane::database {

/// What an engine was asked for.
struct Pasos
{
    int preparadas = 0;
    int ejecutadas = 0;
    int filas = 0; ///< asked for, the end included
    int reinicios = 0;
    int envios = 0; ///< of gathered rows
    int filasEnviadas = 0;
    int abiertos = 0;    ///< engines opened so far
    int cortados = 0;    ///< of these, how many have lost their database
    bool fallan = false; ///< sendings are refused, as by a full disk

    void aCero() { *this = Pasos{.abiertos = abiertos, .cortados = cortados}; }
};

/// Options that open embedded files of `carpeta` through an engine that counts. `pasos` must outlive the connections.
[[nodiscard]] OpcionesDatos opcionesContadas(const QString& carpeta, Pasos& pasos);

} // namespace kestrane::database
