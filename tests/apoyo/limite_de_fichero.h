#pragma once

#include <csignal>
#include <sys/resource.h>

namespace kestrane::prueba {

/// No file of this process may grow beyond so many bytes, as on a disk that is full.
class LimiteDeFichero
{
public:
    explicit LimiteDeFichero(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_antes);
        m_senal = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{.rlim_cur = bytes, .rlim_max = m_antes.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~LimiteDeFichero()
    {
        setrlimit(RLIMIT_FSIZE, &m_antes);
        std::signal(SIGXFSZ, m_senal);
    }
    LimiteDeFichero(const LimiteDeFichero&) = delete;
    LimiteDeFichero& operator=(const LimiteDeFichero&) = delete;

private:
    rlimit m_antes{};
    void (*m_senal)(int) = nullptr;
};

} // namespace kestrane::prueba
