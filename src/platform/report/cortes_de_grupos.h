#pragma once

#include <QtGlobal>

#include <vector>

namespace kestrane::report {

/// Where groups begin, of the rows in their final order.
class CortesDeGrupos
{
public:
    explicit CortesDeGrupos(int niveles = 0) : m_niveles{niveles} {}

    /// The next row begins that many groups, the innermost first.
    void anade(int empiezan);
    [[nodiscard]] int empiezan(qsizetype fila) const { return m_niveles == 0 ? 0 : m_empiezan[static_cast<size_t>(fila)]; }
    /// Which group of a level (1: the outermost) a row stands in, from 0.
    [[nodiscard]] qsizetype grupoDe(qsizetype fila, int nivel) const;

private:
    int m_niveles;
    std::vector<quint8> m_empiezan;
    std::vector<quint32> m_hastaAqui; ///< groups of each level begun before every n-th row
    std::vector<quint32> m_empezados;
};

} // namespace kestrane::report
