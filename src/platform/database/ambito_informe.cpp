#include "platform/database/ambito_informe.h"

#include "platform/database/estado_informe.h"

namespace kestrane::database {

AmbitoInforme::AmbitoInforme(std::shared_ptr<EstadoInforme> estado) : m_estado{std::move(estado)}
{
    m_estado->empieza();
}

void AmbitoInforme::TerminaInforme() noexcept
{
    if (!m_estado)
        return;
    m_estado->termina();
    m_estado.reset();
}

} // namespace kestrane::database
