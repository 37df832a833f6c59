#include "platform/database/base_compartida.h"

#include "platform/database/error_motor.h"

namespace kestrane::database {

void BaseCompartida::sale(MotorBase& motor)
{
    std::erase(m_motores, &motor);
    m_altas.olvidaTablas();
}

void BaseCompartida::anade(const jet::Tabla& tabla, const Edicion& fila, int maximo)
{
    m_altas.anade(tabla, fila);
    ++m_escrituras;
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
                         QStringLiteral("Se ha perdido la conexión con la base de datos: quedan filas sin guardar."));
    completaLecturas();
    m_altas.envia(*motor);
}

bool BaseCompartida::enviaSinError() noexcept
{
    // Each refused row ends a sending with those behind it still waiting.
    while (!m_altas.vacia()) {
        const int antes = m_altas.filas();
        try {
            envia();
        } catch (...) {
            if (m_altas.filas() == antes)
                return false;
        }
    }
    return true;
}

void BaseCompartida::antesDeEscribir()
{
    antesDeLeer();
    completaLecturas();
    m_altas.olvidaColumnas();
    ++m_escrituras;
}

void BaseCompartida::completaLecturas()
{
    while (!m_aMedias.solo())
        Cursor::de(*m_aMedias.siguiente()).completa();
}

} // namespace kestrane::database
