#include "platform/suite/copia_unica.h"

#include <QByteArray>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace kestrane {

namespace {

/// A file descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int numero = -1) : m_numero{numero} {}
    ~Descriptor()
    {
        if (valido())
            ::close(m_numero);
    }
    Descriptor(Descriptor&& otro) noexcept : m_numero{std::exchange(otro.m_numero, -1)} {}
    Descriptor& operator=(Descriptor&& otro) noexcept
    {
        std::swap(m_numero, otro.m_numero);
        return *this;
    }

    [[nodiscard]] bool valido() const { return m_numero >= 0; }
    [[nodiscard]] int numero() const { return m_numero; }

private:
    int m_numero;
};

/// A socket name of the kernel's own table: no file that could be left behind or swept away, no owner, and it goes with the last
/// process that holds it.
struct NombreAbstracto
{
    sockaddr_un direccion{};
    socklen_t tamano = 0;

    explicit NombreAbstracto(const QByteArray& nombre)
    {
        if (nombre.size() > 100)
            throw std::length_error{"the name of the lock is too long"};
        direccion.sun_family = AF_UNIX;
        // The byte 0 in front makes it abstract.
        std::copy(nombre.begin(), nombre.end(), direccion.sun_path + 1);
        tamano = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<size_t>(nombre.size()));
    }
};

class CopiaUnicaLinux final : public CopiaUnica
{
public:
    explicit CopiaUnicaLinux(const QString& nombre) : m_nombre{nombre.toUtf8()} {}

    [[nodiscard]] bool ocupa() override
    {
        if (m_tomado.valido())
            return true;
        // Programs started by this one do not inherit it.
        Descriptor nuevo{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
        if (::bind(nuevo.numero(), reinterpret_cast<const sockaddr*>(&m_nombre.direccion), m_nombre.tamano) != 0)
            return errno != EADDRINUSE;
        m_tomado = std::move(nuevo);
        return true;
    }

private:
    NombreAbstracto m_nombre;
    Descriptor m_tomado;
};

} // namespace

std::unique_ptr<CopiaUnica> creaCopiaUnica(const QString& nombre)
{
    return std::make_unique<CopiaUnicaLinux>(nombre);
}

} // namespace kestrane
