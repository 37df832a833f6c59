#pragma once

#include "platform/database/altas_pendientes.h"
#include "platform/database/cursor.h"

#include <vector>

namespace kestrane::database {

class MotorBase;

/// What all connections of a program to one database share: the rows that wait to be sent, the queries that the engine still holds
/// open, and how often the program has written there.
class BaseCompartida
{
public:
    /// A connection's engine comes and goes. The one that goes lets go of all that is its own here.
    void entra(MotorBase& motor) { m_motores.push_back(&motor); }
    void sale(MotorBase& motor);

    /// Gathers a row and sends what waits once there are `maximo`.
    void anade(const jet::Tabla& tabla, const Edicion& fila, int maximo);
    /// Sends the rows that wait. Errors are the engine's.
    void envia();
    /// The same without a word: false when some could not be sent.
    bool enviaSinError() noexcept;
    [[nodiscard]] int pendientes() const { return m_altas.filas(); }

    /// Before any statement is sent.
    void antesDeLeer()
    {
        if (!m_altas.vacia())
            envia();
    }
    /// Before a statement that writes: besides, the open queries are read to their ends, so that they stay what they were and hold
    /// no lock against it.
    void antesDeEscribir();
    /// Counts up with each write.
    [[nodiscard]] quint64 escrituras() const { return m_escrituras; }

    [[nodiscard]] Cursor::Anillo& aMedias() { return m_aMedias; }

private:
    void completaLecturas();
    [[nodiscard]] MotorBase* motorVivo() const;

    std::vector<MotorBase*> m_motores;
    Cursor::Anillo m_aMedias;
    AltasPendientes m_altas;
    quint64 m_escrituras = 0;
};

} // namespace kestrane::database
