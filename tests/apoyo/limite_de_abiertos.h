#pragma once

#include <sys/resource.h>

namespace kestrane::prueba {

/// This process may have no more than so many files open at once.
class LimiteDeAbiertos
{
public:
    explicit LimiteDeAbiertos(rlim_t ficheros)
    {
        getrlimit(RLIMIT_NOFILE, &m_antes);
        const rlimit limite{.rlim_cur = ficheros, .rlim_max = m_antes.rlim_max};
        setrlimit(RLIMIT_NOFILE, &limite);
    }
    ~LimiteDeAbiertos() { setrlimit(RLIMIT_NOFILE, &m_antes); }
    LimiteDeAbiertos(const LimiteDeAbiertos&) = delete;
    LimiteDeAbiertos& operator=(const LimiteDeAbiertos&) = delete;

private:
    rlimit m_antes{};
};

} // namespace kestrane::prueba
