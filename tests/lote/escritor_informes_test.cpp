#include "lote/escritor_informes.h"

#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace kestrane::lote {
namespace {

TEST(Vuelca, ADeviceThatTakesNothingIsAnError)
{
    QBuffer cerrado;
    QByteArray bytes = "hola";
    EXPECT_THROW(vuelca(bytes, cerrado), ErrorDeSalida);
}

TEST(Vuelca, AllBytesGoOutAndTheBufferIsEmptied)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    QByteArray bytes = "hola";
    vuelca(bytes, destino);
    EXPECT_EQ(destino.data(), "hola");
    EXPECT_TRUE(bytes.isEmpty());
}

TEST(VuelcaSiEsMucho, ALittleWaitsAndMuchGoesOut)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    QByteArray bytes(64 * 1024, 'x');
    vuelcaSiEsMucho(bytes, destino);
    EXPECT_EQ(destino.size(), 0);
    bytes.append('x');
    vuelcaSiEsMucho(bytes, destino);
    EXPECT_EQ(destino.size(), 64 * 1024 + 1);
}

} // namespace
} // namespace kestrane::lote
