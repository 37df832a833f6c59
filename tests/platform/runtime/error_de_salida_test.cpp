#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(EscribeTodo, AnOutputThatDoesNotTakeAllIsAnErrorWithItsReason)
{
    QFile lleno{u"/dev/full"_s};
    ASSERT_TRUE(lleno.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    try {
        escribeTodo(lleno, "hola");
        FAIL() << "it was taken";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"no queda sitio en el disco"_s);
    }
    QBuffer cerrado;
    EXPECT_THROW(escribeTodo(cerrado, "hola"), ErrorDeSalida);
}

TEST(EscribeTodo, AllBytesGoOut)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    escribeTodo(destino, "hola");
    escribeTodo(destino, {});
    EXPECT_EQ(destino.data(), "hola");
}

} // namespace
} // namespace kestrane
