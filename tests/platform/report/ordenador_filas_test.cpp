#include "platform/report/ordenador_filas.h"

#include "platform/report/clave_fila.h"

#include <gtest/gtest.h>

#include <QDir>

namespace kestrane::report {
namespace {

/// Rows (i * 7919 mod 1000 / 10, i): a hundred keys in no order, ten rows each.
database::AlmacenFilas desordenadas()
{
    database::AlmacenFilas filas{2};
    for (int i = 0; i < 1000; ++i) {
        filas.empiezaFila();
        filas.ponEntero32(i * 7919 % 1000 / 10);
        filas.ponEntero32(i);
        filas.terminaFila();
    }
    return filas;
}

void compruebaOrden(qsizetype memoria)
{
    const database::AlmacenFilas filas = desordenadas();
    OrdenadorFilas ordenador{2, memoria};
    database::LectorFilas lector{filas};
    while (lector.siguiente()) {
        QByteArray clave;
        anadeClave(clave, lector.valor(0), Sentido::Ascendente);
        ordenador.anade(clave, lector.empaquetada());
    }
    database::AlmacenFilas ordenadas = ordenador.termina();
    ASSERT_EQ(ordenadas.filas(), 1000);
    int clave = -1;
    int orden = -1;
    for (int i = 0; ordenadas.siguiente(); ++i) {
        const qint32 una = ordenadas.celda(0).entero32();
        const qint32 lugar = ordenadas.celda(1).entero32();
        EXPECT_EQ(una, i / 10);
        EXPECT_TRUE(una > clave || lugar > orden) << "rows of one key keep their order";
        clave = una;
        orden = lugar;
    }
}

TEST(OrdenadorFilas, SortsInMemory)
{
    compruebaOrden(OrdenadorFilas::MemoriaPorDefecto);
}

TEST(OrdenadorFilas, SortsPieceByPieceInFiles)
{
    compruebaOrden(2000);
}

TEST(OrdenadorFilas, KeepsFewFilesOpenHoweverManyPiecesThereAre)
{
    const database::AlmacenFilas filas = desordenadas();
    const auto abiertos = [] { return QDir{QStringLiteral("/proc/self/fd")}.entryList(QDir::AllEntries | QDir::System).size(); };
    const qsizetype antes = abiertos();
    OrdenadorFilas ordenador{2, 1}; // each row a piece
    database::LectorFilas lector{filas};
    while (lector.siguiente()) {
        QByteArray clave;
        anadeClave(clave, lector.valor(0), Sentido::Ascendente);
        ordenador.anade(clave, lector.empaquetada());
        ASSERT_LE(abiertos() - antes, 70);
    }
    compruebaOrden(1);
}

TEST(OrdenadorFilas, OfNoRowsThereAreNone)
{
    OrdenadorFilas ordenador{3};
    EXPECT_EQ(ordenador.termina().filas(), 0);
}

} // namespace
} // namespace kestrane::report
