#include "platform/database/anticipacion.h"

#include "platform/runtime/conversiones.h"

#include <algorithm>

namespace kestrane::database {

Anticipacion::Anticipacion(const void* duenio, const Cursor& cabeceras, int columna, QString cabeza, QString cola,
                           const ConfiguracionRegional& regional)
    : m_duenio{duenio}
    , m_cabeza{std::move(cabeza)}
    , m_cola{std::move(cola)}
    , m_regional{regional}
    , m_lector{cabeceras.filas()}
    , m_columna{columna}
{
    while (m_lector.fila() + 1 < cabeceras.lector().fila())
        static_cast<void>(m_lector.siguiente());
}

void Anticipacion::rellena(size_t maximo)
{
    while (m_proximas.size() < maximo && m_lector.siguiente()) {
        const Valor valor = m_lector.valor(m_columna);
        if (valor.esNulo())
            continue; // its statement is refused, in its own time
        QString clave = aTexto(valor, m_regional);
        if (std::find(m_proximas.begin(), m_proximas.end(), clave) == m_proximas.end())
            m_proximas.push_back(std::move(clave));
    }
}

std::optional<QStringView> Anticipacion::clave(QStringView sentencia) const
{
    const qsizetype largo = sentencia.size() - m_cabeza.size() - m_cola.size();
    if (largo <= 0 || !sentencia.startsWith(m_cabeza) || !sentencia.endsWith(m_cola))
        return std::nullopt;
    return sentencia.sliced(m_cabeza.size(), largo);
}

std::shared_ptr<const AlmacenFilas> Anticipacion::servida(QStringView clave) const
{
    const auto hallada = m_servidas.find(clave);
    return hallada == m_servidas.end() ? nullptr : hallada->second;
}

std::vector<QString> Anticipacion::siguientes(QStringView clave, int maximo)
{
    if (m_deUnaEnUna > 0) {
        --m_deUnaEnUna;
        return {};
    }
    const auto limite = static_cast<size_t>(maximo);
    rellena(limite);
    const auto primera = std::find(m_proximas.begin(), m_proximas.end(), clave);
    if (primera == m_proximas.end())
        return {};
    m_proximas.erase(m_proximas.begin(), primera);
    rellena(limite);
    std::vector<QString> claves{m_proximas.begin(), m_proximas.end()};
    m_proximas.clear();
    return claves;
}

void Anticipacion::guarda(const std::vector<QString>& claves, std::vector<std::shared_ptr<const AlmacenFilas>> filas)
{
    olvida();
    for (size_t i = 0; i < claves.size(); ++i) {
        m_bytes += filas[i]->bytes();
        m_servidas.emplace(claves[i], std::move(filas[i]));
    }
}

void Anticipacion::olvida()
{
    m_servidas.clear();
    m_bytes = 0;
}

void Anticipacion::fallo(size_t claves)
{
    m_deUnaEnUna = claves;
}

} // namespace kestrane::database
