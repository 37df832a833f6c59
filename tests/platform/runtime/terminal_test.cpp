#include "platform/runtime/terminal.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>

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

Fichero unFichero()
{
    return Fichero{std::tmpfile()};
}

Fichero unaTerminal()
{
    return Fichero{fdopen(posix_openpt(O_RDWR | O_NOCTTY), "w")};
}

TEST(EsTerminal, AFileIsNone)
{
    const Fichero fichero = unFichero();
    ASSERT_TRUE(fichero);
    EXPECT_FALSE(esTerminal(fichero.get()));
}

TEST(EsTerminal, APseudoTerminalIsOne)
{
    const Fichero terminal = unaTerminal();
    ASSERT_TRUE(terminal);
    EXPECT_TRUE(esTerminal(terminal.get()));
}

TEST(EsTerminal, AnOutputIsOneWhenItsFileIs)
{
    const Fichero terminal = unaTerminal();
    const Fichero fichero = unFichero();
    ASSERT_TRUE(terminal && fichero);
    const auto deSalida = [](std::FILE* de) {
        QFile salida;
        EXPECT_TRUE(salida.open(de, QIODevice::WriteOnly));
        return esTerminal(salida);
    };
    EXPECT_TRUE(deSalida(terminal.get()));
    EXPECT_FALSE(deSalida(fichero.get()));
    EXPECT_FALSE(esTerminal(QBuffer{}));
    EXPECT_FALSE(esTerminal(QFile{}));
}

TEST(DestinoErroresTest, ErrorsInAFileAreWatchedByNobodyWhereverResultsGo)
{
    const Fichero fichero = unFichero();
    const Fichero terminal = unaTerminal();
    ASSERT_TRUE(fichero && terminal);
    EXPECT_EQ(destinoErrores(fichero.get(), fichero.get()), DestinoErrores::Fichero);
    EXPECT_EQ(destinoErrores(fichero.get(), terminal.get()), DestinoErrores::Fichero);
}

TEST(DestinoErroresTest, ATerminalMayHaveTheResultsToo)
{
    const Fichero fichero = unFichero();
    const Fichero terminal = unaTerminal();
    ASSERT_TRUE(fichero && terminal);
    EXPECT_EQ(destinoErrores(terminal.get(), fichero.get()), DestinoErrores::Terminal);
    EXPECT_EQ(destinoErrores(terminal.get(), terminal.get()), DestinoErrores::TerminalConResultados);
}

TEST(EstaAbierto, AStreamThatWasClosedIsNot)
{
    const Fichero fichero = unFichero();
    ASSERT_TRUE(fichero);
    EXPECT_TRUE(estaAbierto(fichero.get()));
    close(fileno(fichero.get()));
    EXPECT_FALSE(estaAbierto(fichero.get()));
}

} // namespace
} // namespace kestrane
