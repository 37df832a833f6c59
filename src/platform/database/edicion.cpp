#include "platform/database/edicion.h"

namespace kestrane::database {

void Edicion::vacia()
{
    for (const int columna : m_porEscribir)
        m_estado[static_cast<size_t>(columna)] = Estado::Vacio;
    for (const int columna : m_escritas)
        m_estado[static_cast<size_t>(columna)] = Estado::Vacio;
    m_porEscribir.clear();
    m_escritas.clear();
}

void Edicion::pon(int columna, Valor valor)
{
    Estado& estado = m_estado[static_cast<size_t>(columna)];
    if (estado != Estado::PorEscribir)
        m_porEscribir.push_back(columna);
    estado = Estado::PorEscribir;
    m_valores[static_cast<size_t>(columna)] = std::move(valor);
}

const Valor* Edicion::valor(int columna) const
{
    return m_estado[static_cast<size_t>(columna)] == Estado::Vacio ? nullptr : &m_valores[static_cast<size_t>(columna)];
}

void Edicion::escrita()
{
    for (const int columna : m_porEscribir) {
        m_estado[static_cast<size_t>(columna)] = Estado::Escrito;
        m_escritas.push_back(columna);
    }
    m_porEscribir.clear();
}

} // namespace kestrane::database
