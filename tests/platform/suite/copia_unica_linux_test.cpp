#include "platform/suite/copia_unica.h"

#include <QString>

#include <array>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

/// A lock of this test process alone, so that tests disturb neither one another nor a program that runs.
QString nombrePropio()
{
    return u"kestrane-prueba-%1"_s.arg(::getpid());
}

/// A process beside this one that does `trabajo`, says so, and then waits for a signal.
class OtroProceso
{
public:
    explicit OtroProceso(const std::function<bool()>& trabajo)
    {
        std::array<int, 2> tuberia{};
        if (::pipe(tuberia.data()) != 0)
            throw std::runtime_error{"pipe"};
        m_pid = ::fork();
        if (m_pid == 0)
            haz(trabajo, tuberia[1]);
        ::close(tuberia[1]);
        char hecho = '?';
        m_resultado = ::read(tuberia[0], &hecho, 1) == 1 && hecho == 'S';
        ::close(tuberia[0]);
    }
    ~OtroProceso() { mata(); }
    OtroProceso(const OtroProceso&) = delete;
    OtroProceso& operator=(const OtroProceso&) = delete;

    /// What the work returned.
    [[nodiscard]] bool resultado() const { return m_resultado; }
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
    [[noreturn]] static void haz(const std::function<bool()>& trabajo, int salida)
    {
        const char hecho = trabajo() ? 'S' : 'N';
        if (::write(salida, &hecho, 1) != 1)
            ::_exit(1);
        for (;;)
            ::pause();
    }

    pid_t m_pid = 0;
    bool m_resultado = false;
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
    OtroProceso otro{[&] { return suya->ocupa(); }};
    ASSERT_TRUE(otro.resultado());
    EXPECT_FALSE(aqui->ocupa());
    otro.mata();
    EXPECT_TRUE(aqui->ocupa());
}

TEST(CopiaUnica, AnotherProcessIsRefusedWhileThisOneHoldsIt)
{
    const QString nombre = nombrePropio();
    const auto aqui = creaCopiaUnica(nombre);
    ASSERT_TRUE(aqui->ocupa());
    const OtroProceso otro{[&] { return creaCopiaUnica(nombre)->ocupa(); }};
    EXPECT_FALSE(otro.resultado());
}

} // namespace
} // namespace kestrane
