#include "platform/runtime/terminal.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace kestrane {
namespace {

struct CierraFichero
{
    void operator()(std::FILE* fichero) const { std::fclose(fichero); }
};
using Fichero = std::unique_ptr<std::FILE, CierraFichero>;

TEST(EsTerminal, AFileIsNone)
{
    const Fichero fichero{std::tmpfile()};
    ASSERT_TRUE(fichero);
    EXPECT_FALSE(esTerminal(fichero.get()));
}

TEST(EsTerminal, APseudoTerminalIsOne)
{
    const Fichero terminal{fdopen(posix_openpt(O_RDWR | O_NOCTTY), "w")};
    ASSERT_TRUE(terminal);
    EXPECT_TRUE(esTerminal(terminal.get()));
}

TEST(EstaAbierto, AStreamThatWasClosedIsNot)
{
    const Fichero fichero{std::tmpfile()};
    ASSERT_TRUE(fichero);
    EXPECT_TRUE(estaAbierto(fichero.get()));
    close(fileno(fichero.get()));
    EXPECT_FALSE(estaAbierto(fichero.get()));
}

} // namespace
} // namespace kestrane
