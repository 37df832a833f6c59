#pragma once

#include "platform/database/bloque_bytes.h"

#include <QTemporaryFile>

namespace kestrane::database {

/// The rows of a large result that do not fit in memory: a temporary file that goes away with the object. Each row begins with its
/// length in bytes, length included.
class FicheroFilas
{
public:
    /// ErrorEjecucion when no temporary file can be made.
    FicheroFilas();

    /// Appends one packed row. ErrorEjecucion when the disk is full.
    void escribe(const char* fila, qsizetype bytes);
    /// Reads the row at `posicion` into `destino` and returns where the next one begins.
    [[nodiscard]] qsizetype lee(qsizetype posicion, BloqueBytes& destino);
    [[nodiscard]] qsizetype bytes() const { return m_escritos + m_salida.tamano(); }

private:
    void vuelca();
    void carga(qsizetype posicion, qsizetype bytes);

    QTemporaryFile m_fichero;
    BloqueBytes m_salida; ///< written rows that are not yet in the file
    qsizetype m_escritos = 0;
    BloqueBytes m_entrada; ///< the stretch of the file that was read last
    qsizetype m_inicioEntrada = 0;
};

} // namespace kestrane::database
