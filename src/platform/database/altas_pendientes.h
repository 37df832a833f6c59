#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/edicion.h"
#include "platform/database/error_motor.h"
#include "platform/database/motor.h"

#include <exception>
#include <memory>
#include <optional>
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
    /// Sends all. Rows that the database refuses are dropped, all others are sent, and the error tells the first refusal and how
    /// many there were. When the database cannot be written for another reason all that is not sent waits on.
    void envia(MotorBase& motor);
    /// Rows dropped so far.
    [[nodiscard]] int rechazadas() const { return m_rechazadas; }
    /// The engine to which the tables belong closes.
    void olvidaTablas();
    /// The next rows are expected to write other columns than those before.
    void olvidaColumnas();

private:
    struct Lote;

    [[nodiscard]] Lote& loteDe(const jet::Tabla& tabla);
    void enviaLote(Lote& lote, MotorBase& motor);
    void enviaUnaAUna(Lote& lote, MotorBase& motor);
    [[nodiscard]] std::exception_ptr enviaUna(const Lote& lote, AlmacenFilas& una, MotorBase& motor);
    void rechaza(const ErrorMotor& error, const jet::Tabla& tabla);
    void avisaDeRechazos(int antes);

    std::vector<std::unique_ptr<Lote>> m_lotes;
    int m_filas = 0;
    int m_rechazadas = 0;
    std::optional<ErrorEjecucion> m_primerRechazo; ///< of the sending under way
};

} // namespace kestrane::database
