#include "platform/database/estado_informe.h"

namespace kestrane::database {

void EstadoInforme::termina()
{
    if (--m_ambitos == 0)
        vacia();
}

void EstadoInforme::alDia(quint64 escrituras)
{
    if (m_escrituras == escrituras)
        return;
    m_escrituras = escrituras;
    m_respuestas.vacia();
    for (const auto& anticipacion : m_anticipaciones)
        anticipacion->olvida();
}

qsizetype EstadoInforme::bytesParaAdelantar() const
{
    qsizetype libres = m_bytesAdelantados;
    for (const auto& anticipacion : m_anticipaciones)
        libres -= anticipacion->bytes();
    return libres;
}

void EstadoInforme::vacia()
{
    m_respuestas.vacia();
    m_anticipaciones.clear();
}

void EstadoInforme::retira(const void* duenio)
{
    std::erase_if(m_anticipaciones, [&](const auto& anticipacion) { return anticipacion->esDe(duenio); });
}

} // namespace kestrane::database
