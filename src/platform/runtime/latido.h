#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace kestrane {

/// Does something over and over on a thread of its own while it lives, so that an operator sees a program alive that waits for a
/// database or a disk.
class Latido
{
public:
    /// `haz` runs every `cada` from now on, never on two threads at once and not after the object is gone.
    Latido(std::chrono::milliseconds cada, std::function<void()> haz);
    ~Latido() = default;
    Latido(const Latido&) = delete;
    Latido& operator=(const Latido&) = delete;

private:
    void late(const std::stop_token& parada);

    std::chrono::milliseconds m_cada;
    std::function<void()> m_haz;
    std::mutex m_cerrojo;
    std::condition_variable_any m_aviso;
    std::jthread m_hilo; ///< the last member: it ends before the others go
};

} // namespace kestrane
