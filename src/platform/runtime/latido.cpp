#include "platform/runtime/latido.h"

namespace kestrane {

Latido::Latido(std::chrono::milliseconds cada, std::function<void()> haz)
    : m_cada{cada}
    , m_haz{std::move(haz)}
    , m_hilo{[this](const std::stop_token& parada) { late(parada); }}
{
}

void Latido::late(const std::stop_token& parada)
{
    std::unique_lock cerrado{m_cerrojo};
    while (!m_aviso.wait_for(cerrado, parada, m_cada, [&] { return parada.stop_requested(); }))
        m_haz();
}

} // namespace kestrane
