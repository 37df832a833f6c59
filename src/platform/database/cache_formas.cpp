#include "platform/database/cache_formas.h"

namespace kestrane::database {

PlanSentencia* CacheFormas::busca(QStringView forma, size_t hash)
{
    const auto [primera, fin] = m_porHash.equal_range(hash);
    for (auto i = primera; i != fin; ++i) {
        if (i->second->forma != forma)
            continue;
        m_entradas.splice(m_entradas.begin(), m_entradas, i->second);
        return i->second->plan.get();
    }
    return nullptr;
}

PlanSentencia& CacheFormas::inserta(QStringView forma, size_t hash, std::unique_ptr<PlanSentencia> plan)
{
    const qsizetype bytes = forma.size() * 2 + plan->bytes();
    m_entradas.push_front({forma.toString(), hash, std::move(plan), bytes});
    m_porHash.emplace(hash, m_entradas.begin());
    m_bytes += bytes;
    recorta();
    return *m_entradas.front().plan;
}

void CacheFormas::recorta()
{
    auto i = m_entradas.end();
    while (--i != m_entradas.begin() && (cuantas() > m_maximo || m_bytes > m_bytesMaximos)) {
        if (i->plan->enUso())
            continue;
        olvida(i++);
    }
}

void CacheFormas::olvida(Entradas::iterator entrada)
{
    const auto [primera, fin] = m_porHash.equal_range(entrada->hash);
    for (auto i = primera; i != fin; ++i) {
        if (i->second == entrada) {
            m_porHash.erase(i);
            break;
        }
    }
    m_bytes -= entrada->bytes;
    m_entradas.erase(entrada);
}

} // namespace kestrane::database
