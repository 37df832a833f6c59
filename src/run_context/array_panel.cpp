#include "run_context/array_panel.h"

#include "platform/runtime/error_ejecucion.h"

namespace kestrane {

void ArrayPanel::reserva(int limiteSuperior)
{
    m_elementos.assign(static_cast<size_t>(limiteSuperior) + 1, {});
}

int ArrayPanel::limiteSuperior() const
{
    exige(0);
    return static_cast<int>(m_elementos.size()) - 1;
}

ElementoPanel& ArrayPanel::operator[](int indice)
{
    exige(indice);
    return m_elementos[static_cast<size_t>(indice)];
}

const ElementoPanel& ArrayPanel::operator[](int indice) const
{
    exige(indice);
    return m_elementos[static_cast<size_t>(indice)];
}

void ArrayPanel::exige(int indice) const
{
    if (indice < 0 || static_cast<size_t>(indice) >= m_elementos.size())
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeIntervalo);
}

} // namespace kestrane
