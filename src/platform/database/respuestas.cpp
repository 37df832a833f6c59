#include "platform/database/respuestas.h"

namespace kestrane::database {

namespace {

constexpr size_t LugaresVistas = 16384;
constexpr qsizetype BytesPorEntrada = 500; ///< the bookkeeping of one answer

} // namespace

const Respuestas::Respuesta* Respuestas::busca(const QString& sentencia)
{
    const auto hallada = m_porTexto.find(sentencia);
    if (hallada == m_porTexto.end())
        return nullptr;
    m_entradas.splice(m_entradas.begin(), m_entradas, hallada->second);
    return &hallada->second->respuesta;
}

bool Respuestas::repetida(const QString& sentencia)
{
    m_vistas.resize(LugaresVistas);
    const size_t hash = qHash(sentencia) | 1;
    return std::exchange(m_vistas[hash / 2 % LugaresVistas], hash) == hash;
}

void Respuestas::guarda(const QString& sentencia, PlanSentencia& plan, std::shared_ptr<const AlmacenFilas> filas)
{
    const qsizetype bytes = BytesPorEntrada + sentencia.size() * 2 + filas->bytes();
    if (bytes > m_bytesMaximos / 4 || m_porTexto.contains(sentencia))
        return;
    plan.usa();
    m_entradas.push_front({sentencia, {&plan, std::move(filas)}, bytes});
    m_porTexto.emplace(sentencia, m_entradas.begin());
    m_bytes += bytes;
    recorta();
}

void Respuestas::recorta()
{
    while (m_bytes > m_bytesMaximos) {
        Entrada& ultima = m_entradas.back();
        ultima.respuesta.plan->deja();
        m_bytes -= ultima.bytes;
        m_porTexto.erase(ultima.sentencia);
        m_entradas.pop_back();
    }
}

void Respuestas::vacia()
{
    for (const Entrada& entrada : m_entradas)
        entrada.respuesta.plan->deja();
    m_porTexto.clear();
    m_entradas.clear();
    m_vistas.clear();
    m_bytes = 0;
}

} // namespace kestrane::database
