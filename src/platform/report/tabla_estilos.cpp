#include "platform/report/tabla_estilos.h"

#include <algorithm>

namespace kestrane::report {

int TablaEstilos::indice(const Estilo& estilo)
{
    const auto conocido = std::find(m_estilos->begin(), m_estilos->end(), estilo);
    const auto lugar = static_cast<int>(conocido - m_estilos->begin());
    if (conocido == m_estilos->end())
        m_estilos->push_back(estilo);
    return lugar;
}

const MedidaEstilo& TablaEstilos::medida(int indice) const
{
    const auto lugar = static_cast<size_t>(indice);
    if (lugar >= m_medidas.size())
        m_medidas.resize(m_estilos->size());
    if (!m_medidas[lugar])
        m_medidas[lugar] = std::make_unique<MedidaEstilo>((*m_estilos)[lugar]);
    return *m_medidas[lugar];
}

} // namespace kestrane::report
