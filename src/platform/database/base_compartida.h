#pragma once

#include "platform/database/altas_pendientes.h"
#include "platform/database/cursor.h"

#include <QString>

#include <chrono>
#include <exception>
#include <vector>

namespace kestrane::database {

class MotorBase;

/// What all connections of a program to one database share: the rows that wait to be sent, the queries that the engine still holds
/// open, and how often the program has written there.
class BaseCompartida
{
public:
    /// `nombre` is the data source's, for messages; `espera` how long a statement waits for a lock.
    BaseCompartida(QString nombre, std::chrono::milliseconds espera) : m_nombre{std::move(nombre)}, m_espera{espera} {}

    [[nodiscard]] const QString& nombre() const { return m_nombre; }

    /// A connection's engine comes and goes. The one that goes lets go of all that is its own here.
    void entra(MotorBase& motor) { m_motores.push_back(&motor); }
    void sale(MotorBase& motor);

    /// Gathers a row.
    void anade(const jet::Tabla& tabla, const Edicion& fila);
    /// Sends the rows that wait. Errors are the engine's.
    void envia();
    /// The same once there are `maximo` of them.
    void enviaSiHay(int maximo);
    /// The same without a word, for destructors and error handlers: false when some could not be sent. For a lock that a sending
    /// has waited for in vain it does not wait again.
    bool enviaSinError() noexcept;
    /// Sends, and throws too when rows were lost without a word before.
    void enviaYAvisa();
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
    void completaLecturas() noexcept;
    void enviaSinEsperar();
    [[nodiscard]] MotorBase* motorVivo() const;

    std::vector<MotorBase*> m_motores;
    Cursor::Anillo m_aMedias;
    AltasPendientes m_altas;
    quint64 m_escrituras = 0;
    QString m_nombre;
    std::chrono::milliseconds m_espera;
    bool m_esperoEnVano = false;    ///< the last sending left rows behind
    std::exception_ptr m_sinAvisar; ///< why rows were dropped without a word
};

} // namespace kestrane::database
