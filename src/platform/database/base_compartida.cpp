#include "platform/database/base_compartida.h"

#include "platform/database/error_motor.h"

using namespace Qt::StringLiterals;

namespace kestrane::database {

void BaseCompartida::sale(MotorBase& motor)
{
    std::erase(m_motores, &motor);
    m_altas.olvidaTablas();
}

void BaseCompartida::anade(const jet::Tabla& tabla, const Edicion& fila)
{
    m_altas.anade(tabla, fila);
    ++m_escrituras;
}

void BaseCompartida::enviaSiHay(int maximo)
{
    if (m_altas.filas() >= maximo)
        envia();
}

MotorBase* BaseCompartida::motorVivo() const
{
    for (MotorBase* const motor : m_motores) {
        if (!motor->perdida())
            return motor;
    }
    return nullptr;
}

void BaseCompartida::envia()
{
    if (m_altas.vacia())
        return;
    MotorBase* const motor = motorVivo();
    if (!motor)
        throw ErrorMotor(ErrorMotor::Categoria::ConexionPerdida, ErrorEjecucion::ConexionImposible,
                         u"Se ha perdido la conexión con la base de datos \"%1\" y quedan %2 filas sin guardar. Compruebe que la "
                         u"base de datos está disponible y repita la operación."_s.arg(m_nombre)
                             .arg(m_altas.filas()));
    completaLecturas();
    try {
        m_altas.envia(*motor);
    } catch (...) {
        m_esperoEnVano = !m_altas.vacia();
        throw;
    }
    m_esperoEnVano = false;
}

void BaseCompartida::enviaSinEsperar()
{
    using namespace std::chrono_literals;
    MotorBase* const motor = motorVivo();
    if (!motor)
        return;
    motor->ponEspera(0ms);
    try {
        envia();
    } catch (...) {
        motor->ponEspera(m_espera);
        throw;
    }
    motor->ponEspera(m_espera);
}

bool BaseCompartida::enviaSinError() noexcept
{
    const int rechazadas = m_altas.rechazadas();
    try {
        if (m_esperoEnVano)
            enviaSinEsperar();
        else
            envia();
    } catch (...) {
        if (m_altas.rechazadas() != rechazadas && !m_sinAvisar)
            m_sinAvisar = std::current_exception();
    }
    return m_altas.vacia() && m_altas.rechazadas() == rechazadas;
}

void BaseCompartida::enviaYAvisa()
{
    envia();
    if (m_sinAvisar)
        std::rethrow_exception(std::exchange(m_sinAvisar, nullptr));
}

void BaseCompartida::antesDeEscribir()
{
    antesDeLeer();
    completaLecturas();
    m_altas.olvidaColumnas();
    ++m_escrituras;
}

void BaseCompartida::completaLecturas() noexcept
{
    // A row that cannot be read is the trouble of the recordset that it belongs to, not of the statement that is about to run.
    while (!m_aMedias.solo())
        Cursor::de(*m_aMedias.siguiente()).completaCallando();
}

} // namespace kestrane::database
