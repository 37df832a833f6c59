#pragma once

#include "platform/database/conexion.h"

#include <QString>

namespace kestrane {

/// The terminal's identity and the appearance that is stored for it, given an open connection to the shop. One object serves a
/// whole run: what the menu changes is what it reads again.
class PreferenciasTerminal
{
public:
    virtual ~PreferenciasTerminal() = default;

    /// The terminal's identifier.
    [[nodiscard]] virtual QString DarIdentificador() = 0;
    /// The stored theme number.
    [[nodiscard]] virtual qint32 DarTema(Conexion& conexion) = 0;
    /// Stores the next theme and returns its number.
    virtual qint32 SiguienteTema(Conexion& conexion) = 0;
    /// The stored font setting.
    [[nodiscard]] virtual qint32 DarLetra(Conexion& conexion) = 0;
    /// Stores the next font setting and returns it.
    virtual qint32 SiguienteLetra(Conexion& conexion) = 0;
    /// The stored window width in twips.
    [[nodiscard]] virtual double DarAncho(Conexion& conexion) = 0;
    /// Takes `ancho` x `alto` twips to the next window size and stores it. Returns whether they changed.
    virtual bool SiguienteTamano(Conexion& conexion, double& ancho, double& alto) = 0;
    /// The stored window height in twips.
    [[nodiscard]] virtual double DarAlto(Conexion& conexion) = 0;
};

} // namespace kestrane
