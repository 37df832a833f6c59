#include "platform/report/filas_por_sitio.h"

namespace kestrane::report {

namespace {

/// Rows between two places that are remembered.
constexpr qsizetype Paso = 64;

} // namespace

FilasPorSitio::FilasPorSitio(std::shared_ptr<const database::AlmacenFilas> filas) : m_filas{std::move(filas)}, m_lector{*m_filas} {}

database::Celda FilasPorSitio::celda(qsizetype fila, int columna) const
{
    if (m_lector.fila() != fila + 1)
        situa(fila);
    return m_lector.celda(columna);
}

void FilasPorSitio::situa(qsizetype fila) const
{
    const qsizetype cercano = std::min(fila / Paso, static_cast<qsizetype>(m_sitios.size()) - 1);
    if (cercano >= 0 && (fila < m_lector.fila() || cercano * Paso > m_lector.fila()))
        m_lector.vuelve(m_sitios[static_cast<size_t>(cercano)]);
    while (m_lector.fila() <= fila) {
        if (m_lector.fila() == static_cast<qsizetype>(m_sitios.size()) * Paso)
            m_sitios.push_back(m_lector.sitio());
        static_cast<void>(m_lector.siguiente());
    }
}

} // namespace kestrane::report
