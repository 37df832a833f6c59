#include "platform/report/filas_por_sitio.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

std::shared_ptr<const database::AlmacenFilas> numeradas(int filas, qsizetype limite)
{
    auto almacen = std::make_shared<database::AlmacenFilas>(1, limite);
    for (int i = 0; i < filas; ++i) {
        almacen->empiezaFila();
        almacen->ponEntero32(i);
        almacen->terminaFila();
    }
    return almacen;
}

void compruebaSaltos(qsizetype limite)
{
    const FilasPorSitio filas{numeradas(1000, limite)};
    EXPECT_EQ(filas.filas(), 1000);
    for (const int fila : {0, 1, 999, 63, 64, 65, 500, 499, 0, 128, 128, 127})
        EXPECT_EQ(filas.valor(fila, 0), Valor{fila});
    for (int fila = 0; fila < 1000; ++fila)
        EXPECT_EQ(filas.celda(fila, 0).entero32(), fila);
}

TEST(FilasPorSitio, AnyRowInMemory)
{
    compruebaSaltos(database::AlmacenFilas::LimitePorDefecto);
}

TEST(FilasPorSitio, AnyRowInTheFile)
{
    compruebaSaltos(1000);
}

} // namespace
} // namespace kestrane::report
