#include "platform/report/cortes_de_grupos.h"

namespace kestrane::report {

namespace {

/// Rows between two places where the number of groups so far is kept.
constexpr qsizetype PasoCortes = 256;

} // namespace

void CortesDeGrupos::anade(int empiezan)
{
    if (m_niveles == 0)
        return;
    m_empezados.resize(static_cast<size_t>(m_niveles));
    if (static_cast<qsizetype>(m_empiezan.size()) % PasoCortes == 0)
        m_hastaAqui.insert(m_hastaAqui.end(), m_empezados.begin(), m_empezados.end());
    m_empiezan.push_back(static_cast<quint8>(empiezan));
    for (int nivel = m_niveles - empiezan + 1; nivel <= m_niveles; ++nivel)
        ++m_empezados[static_cast<size_t>(nivel) - 1];
}

qsizetype CortesDeGrupos::grupoDe(qsizetype fila, int nivel) const
{
    const qsizetype tramo = fila / PasoCortes;
    qsizetype grupo = m_hastaAqui[static_cast<size_t>(tramo * m_niveles + nivel - 1)];
    for (qsizetype i = tramo * PasoCortes; i <= fila; ++i)
        grupo += m_empiezan[static_cast<size_t>(i)] > m_niveles - nivel ? 1 : 0;
    return grupo - 1;
}

} // namespace kestrane::report
