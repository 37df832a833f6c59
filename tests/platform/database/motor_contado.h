#pragma once

#include "platform/database/entorno_datos.h"

#include <chrono>
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
    int abiertos = 0; ///< engines opened so far
    int cortados = 0; ///< of these, how many have lost their database
    enum class Envios { Bien, DiscoLleno, Bloqueados, FilasRechazadas };
    Envios losEnvios = Envios::Bien;       ///< what becomes of them
    std::chrono::milliseconds esperado{0}; ///< for locks, by sendings that met one

    void aCero() { *this = Pasos{.abiertos = abiertos, .cortados = cortados}; }
};

/// An engine that counts what `propio` is asked for. `pasos` must outlive it.
[[nodiscard]] std::unique_ptr<MotorBase> motorContado(std::unique_ptr<MotorBase> propio, Pasos& pasos);
/// Options that open what `propias` do, through engines that count. `pasos` must outlive the connections.
[[nodiscard]] OpcionesDatos contando(const OpcionesDatos& propias, Pasos& pasos);
/// Options that open embedded files of `carpeta` through an engine that counts. `pasos` must outlive the connections.
[[nodiscard]] OpcionesDatos opcionesContadas(const QString& carpeta, Pasos& pasos);

} // namespace kestrane::database
