#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/edicion.h"
#include "platform/database/motor.h"

#include <memory>
#include <vector>

namespace kestrane::database {

/// Added rows that wait to be sent together, table by table, in the order in which they were added.
///
/// Rows that wrote different columns go out in one statement: what a row did not write is Null, which is what the database would
/// put there (tables where it would not are written row by row).
class AltasPendientes
{
public:
    AltasPendientes();
    ~AltasPendientes();

    [[nodiscard]] bool vacia() const { return m_filas == 0; }
    [[nodiscard]] int filas() const { return m_filas; }

    /// Adds a row. `tabla` need not outlive the call's end but while it is an engine's (olvidaTablas).
    void anade(const jet::Tabla& tabla, const Edicion& fila);
    /// Sends all. When a row is refused those before it are sent, it is dropped, and those behind it wait on. When the database
    /// cannot be written all that is not sent waits on.
    void envia(MotorBase& motor);
    /// The engine to which the tables belong closes.
    void olvidaTablas();
    /// The next rows are expected to write other columns than those before.
    void olvidaColumnas();

private:
    struct Lote;

    [[nodiscard]] Lote& loteDe(const jet::Tabla& tabla);
    void enviaLote(Lote& lote, MotorBase& motor);
    void enviaUnaAUna(Lote& lote, MotorBase& motor);

    std::vector<std::unique_ptr<Lote>> m_lotes;
    int m_filas = 0;
};

} // namespace kestrane::database
