#include "platform/runtime/salida_estandar.h"

#include "platform/runtime/terminal.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryFile>

#include <array>
#include <new>
#include <stdexcept>
#include <unistd.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class SalidaEstandar : public testing::Test
{
protected:
    SalidaEstandar() { m_errores.open(QIODevice::WriteOnly); }

    int corre(QFileDevice& salida, const TrabajoConSalida& trabajo) { return conSalida(u"prueba", salida, m_errores, trabajo); }

    /// Of a work that ends in an exception.
    int falla(const std::function<void()>& lanza)
    {
        QTemporaryFile salida;
        EXPECT_TRUE(salida.open());
        return corre(salida, [&](QIODevice&, QIODevice&) {
            lanza();
            return 0;
        });
    }

    QBuffer m_errores;
};

TEST_F(SalidaEstandar, AnOutputThatDoesNotTakeAllIsASentenceAndAFailure)
{
    QFile lleno{u"/dev/full"_s};
    ASSERT_TRUE(lleno.open(QIODevice::WriteOnly));
    EXPECT_EQ(corre(lleno,
                    [](QIODevice& salida, QIODevice&) {
                        salida.write("una línea\n");
                        return 3;
                    }),
              EstadoDeFallo);
    EXPECT_EQ(m_errores.data(), "prueba: no se puede escribir en la salida estándar (no queda sitio en el disco).\n");
}

TEST_F(SalidaEstandar, APipeThatNobodyReadsIsASentenceAndAFailure)
{
    rehusaTuberiasRotas();
    std::array<int, 2> extremos{};
    ASSERT_EQ(pipe(extremos.data()), 0);
    close(extremos[0]);
    QFile tubo;
    ASSERT_TRUE(tubo.open(extremos[1], QIODevice::WriteOnly, QFile::AutoCloseHandle));
    EXPECT_EQ(corre(tubo,
                    [](QIODevice& salida, QIODevice&) {
                        salida.write("una línea\n");
                        return 0;
                    }),
              EstadoDeFallo);
    EXPECT_EQ(m_errores.data(), "prueba: no se puede escribir en la salida estándar (nadie lee la salida).\n");
}

TEST_F(SalidaEstandar, AnyExceptionIsASentenceAndAFailure)
{
    EXPECT_EQ(falla([] { throw std::bad_alloc{}; }), EstadoDeFallo);
    EXPECT_EQ(falla([] { throw std::logic_error{"x"}; }), EstadoDeFallo);
    EXPECT_EQ(falla([] { throw 7; }), EstadoDeFallo);
    EXPECT_EQ(m_errores.data(), "prueba: no queda memoria.\nprueba: error interno \"x\".\nprueba: error interno desconocido.\n");
}

TEST_F(SalidaEstandar, WhatWasWrittenIsThereAndTheStatusIsTheWorks)
{
    QTemporaryFile salida;
    ASSERT_TRUE(salida.open());
    EXPECT_EQ(corre(salida,
                    [](QIODevice& abierta, QIODevice& errores) {
                        abierta.write("hecho");
                        errores.write("aviso");
                        return 3;
                    }),
              3);
    QFile escrito{salida.fileName()};
    ASSERT_TRUE(escrito.open(QIODevice::ReadOnly));
    EXPECT_EQ(escrito.readAll(), "hecho");
    EXPECT_EQ(m_errores.data(), "aviso");
}

} // namespace
} // namespace kestrane
