#include "platform/suite/copia_unica.h"

#include <QString>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

/// A lock of this test process alone, so that tests disturb neither one another nor a program that runs.
QString nombrePropio()
{
    return u"kestrane-prueba-%1"_s.arg(::getpid());
}

/// Both ends of a pipe, which programs that are started do not inherit.
struct Tuberia
{
    Tuberia()
    {
        std::array<int, 2> extremos{};
        if (::pipe2(extremos.data(), O_CLOEXEC) != 0)
            throw std::runtime_error{"pipe2"};
        salida = extremos[0];
        entrada = extremos[1];
    }
    ~Tuberia()
    {
        ::close(salida);
        cierraEntrada();
    }
    Tuberia(const Tuberia&) = delete;
    Tuberia& operator=(const Tuberia&) = delete;

    void cierraEntrada() { ::close(std::exchange(entrada, -1)); }
    /// The next byte; nothing when the last process that could write has closed its end.
    [[nodiscard]] std::optional<char> lee() const
    {
        char byte = 0;
        return ::read(salida, &byte, 1) == 1 ? std::optional{byte} : std::nullopt;
    }

    int salida = -1;
    int entrada = -1;
};

/// A process beside this one, until it ends or is killed.
class OtroProceso
{
public:
    /// `cuerpo` does not return.
    explicit OtroProceso(const std::function<void()>& cuerpo) : m_pid{::fork()}
    {
        if (m_pid < 0)
            throw std::runtime_error{"fork"};
        if (m_pid == 0) {
            cuerpo();
            ::_exit(1);
        }
    }
    ~OtroProceso() { mata(); }
    OtroProceso(const OtroProceso&) = delete;
    OtroProceso& operator=(const OtroProceso&) = delete;

    [[nodiscard]] bool vive() const { return ::waitpid(m_pid, nullptr, WNOHANG) == 0; }
    /// As a crash would end it; returns when it is gone.
    void mata()
    {
        if (m_pid <= 0)
            return;
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
        m_pid = 0;
    }

private:
    pid_t m_pid = 0;
};

enum class Respuesta { Tomada, Rehusada, Muerto };

/// Another process that takes the lock, or tries to, and then waits until it is killed.
class OtraCopia
{
public:
    explicit OtraCopia(CopiaUnica& copia)
        : m_proceso{[&] {
            const char byte = copia.ocupa() ? 'S' : 'N';
            if (::write(m_tuberia.entrada, &byte, 1) == 1)
                ::pause();
        }}
    {
        m_tuberia.cierraEntrada();
        const std::optional<char> byte = m_tuberia.lee();
        m_respuesta = !byte ? Respuesta::Muerto : *byte == 'S' ? Respuesta::Tomada : Respuesta::Rehusada;
    }

    [[nodiscard]] Respuesta respuesta() const { return m_respuesta; }
    void mata() { m_proceso.mata(); }

private:
    Tuberia m_tuberia;
    OtroProceso m_proceso;
    Respuesta m_respuesta = Respuesta::Muerto;
};

/// Another program that was started from this one and runs.
class OtroPrograma
{
public:
    OtroPrograma()
        : m_proceso{[this] {
            // It waits for what never comes in; the other pipe closes as it starts.
            ::dup2(m_espera.salida, STDIN_FILENO);
            ::execl("/bin/cat", "cat", static_cast<char*>(nullptr));
            static_cast<void>(::write(m_arranque.entrada, "N", 1));
        }}
    {
        m_arranque.cierraEntrada();
        m_arrancado = !m_arranque.lee();
    }

    [[nodiscard]] bool corre() const { return m_arrancado && m_proceso.vive(); }

private:
    Tuberia m_arranque;
    Tuberia m_espera;
    OtroProceso m_proceso;
    bool m_arrancado = false;
};

TEST(CopiaUnica, TheFirstCopyRunsAndASecondOneDoesNot)
{
    const auto primera = creaCopiaUnica(nombrePropio());
    const auto segunda = creaCopiaUnica(nombrePropio());
    EXPECT_TRUE(primera->ocupa());
    EXPECT_FALSE(segunda->ocupa());
    EXPECT_TRUE(primera->ocupa()) << "it is itself no other copy";
}

TEST(CopiaUnica, ACopyThatEndedLeavesThePlace)
{
    {
        const auto primera = creaCopiaUnica(nombrePropio());
        EXPECT_TRUE(primera->ocupa());
    }
    EXPECT_TRUE(creaCopiaUnica(nombrePropio())->ocupa());
}

TEST(CopiaUnica, MakingTheLockTakesNothing)
{
    const auto primera = creaCopiaUnica(nombrePropio());
    EXPECT_TRUE(creaCopiaUnica(nombrePropio())->ocupa());
}

TEST(CopiaUnica, OtherNamesAreOtherPrograms)
{
    const auto una = creaCopiaUnica(nombrePropio());
    const auto otra = creaCopiaUnica(nombrePropio() + u"-ñ"_s);
    EXPECT_TRUE(una->ocupa());
    EXPECT_TRUE(otra->ocupa());
}

TEST(CopiaUnica, ANameThatDoesNotFitIsRefused)
{
    EXPECT_NO_THROW(static_cast<void>(creaCopiaUnica(QString(100, u'a'))));
    EXPECT_THROW(static_cast<void>(creaCopiaUnica(QString(101, u'a'))), std::length_error);
    EXPECT_THROW(static_cast<void>(creaCopiaUnica(QString(51, u'ñ'))), std::length_error);
}

TEST(CopiaUnica, ItFallsWithAProcessThatIsKilled)
{
    const QString nombre = nombrePropio();
    const auto aqui = creaCopiaUnica(nombre);
    const auto suya = creaCopiaUnica(nombre);
    OtraCopia otra{*suya};
    ASSERT_EQ(otra.respuesta(), Respuesta::Tomada);
    EXPECT_FALSE(aqui->ocupa());
    otra.mata();
    EXPECT_TRUE(aqui->ocupa());
}

TEST(CopiaUnica, AnotherProcessIsRefusedWhileThisOneHoldsIt)
{
    const QString nombre = nombrePropio();
    const auto aqui = creaCopiaUnica(nombre);
    const auto suya = creaCopiaUnica(nombre);
    ASSERT_TRUE(aqui->ocupa());
    EXPECT_EQ(OtraCopia{*suya}.respuesta(), Respuesta::Rehusada);
}

TEST(CopiaUnica, AProgramThatThisOneStartedDoesNotKeepIt)
{
    const QString nombre = nombrePropio();
    auto esta = creaCopiaUnica(nombre);
    ASSERT_TRUE(esta->ocupa());
    const OtroPrograma programa;
    esta.reset();
    EXPECT_TRUE(creaCopiaUnica(nombre)->ocupa());
    EXPECT_TRUE(programa.corre());
}

} // namespace
} // namespace kestrane
