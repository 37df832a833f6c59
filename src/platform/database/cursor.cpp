#include "platform/database/cursor.h"

namespace kestrane::database {

Cursor::Cursor(std::unique_ptr<SentenciaMotor> sentencia, int columnas, qsizetype limite)
    : m_sentencia{std::move(sentencia)}
    , m_filas{columnas, limite}
    , m_limite{limite}
{
}

void Cursor::ejecuta(std::span<const Ligado> parametros, Anillo& aMedias)
{
    m_lector.empieza(m_filas);
    m_sentencia->ejecuta(parametros);
    m_completo = false;
    entraAntesDe(aMedias);
}

void Cursor::recuerda(std::shared_ptr<const AlmacenFilas> filas)
{
    m_recordadas = std::move(filas);
    m_lector.empieza(*m_recordadas);
    m_completo = true;
}

void Cursor::exigeSano() const
{
    if (m_error)
        std::rethrow_exception(m_error);
}

void Cursor::termina() noexcept
{
    m_completo = true;
    sale();
    m_sentencia->reinicia();
}

bool Cursor::leeUna()
{
    if (m_completo)
        return false;
    try {
        if (m_sentencia->siguiente(m_filas))
            return true;
    } catch (...) {
        m_error = std::current_exception();
        m_filas.abandonaFila();
        termina();
        throw;
    }
    termina();
    return false;
}

bool Cursor::hay(qsizetype filas)
{
    exigeSano();
    while (leidas() < filas) {
        if (!leeUna())
            return false;
    }
    return true;
}

void Cursor::completa()
{
    exigeSano();
    while (leeUna()) {
    }
}

void Cursor::completaCallando() noexcept
{
    try {
        completa();
    } catch (...) {
        Q_ASSERT(m_error); // it is kept
    }
}

bool Cursor::avanza()
{
    exigeSano();
    if (m_lector.siguiente())
        return true;
    if (m_completo)
        return false;
    if (m_lector.fila() == 0)
        static_cast<void>(hay(1));
    else
        completa();
    return m_lector.siguiente();
}

std::shared_ptr<const AlmacenFilas> Cursor::comparte()
{
    if (!m_recordadas) {
        const qsizetype fila = m_lector.fila();
        const int columnas = m_filas.columnas();
        m_recordadas = std::make_shared<const AlmacenFilas>(std::move(m_filas));
        m_filas = AlmacenFilas{columnas, m_limite};
        m_lector.empieza(*m_recordadas);
        while (m_lector.fila() < fila)
            static_cast<void>(m_lector.siguiente());
    }
    return m_recordadas;
}

void Cursor::suelta() noexcept
{
    if (!m_completo)
        termina();
    m_error = nullptr;
    m_recordadas.reset();
    m_filas.vacia();
}

} // namespace kestrane::database
