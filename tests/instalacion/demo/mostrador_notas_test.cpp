#include "instalacion/demo/mes_de_cada_sabor.h"

#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(NotasDeLaDemo);

TEST_P(NotasDeLaDemo, DeliveryNotesWaitInTheShopsMostly)
{
    int notas = 0;
    int aparcados = 0;
    std::set<int> numeros;
    for (const Fila& nota : filas(tablas::CabeceraFacturaTemp)) {
        const bool esNota = !nota.nulo("num_albaran") && nota.entero("num_albaran") > 0;
        notas += esNota ? 1 : 0;
        aparcados += esNota ? 0 : 1;
        numeros.insert(nota.entero("numero"));
    }
    for (const Fila& linea : filas(tablas::DetalleFacturaTemp))
        EXPECT_TRUE(numeros.contains(linea.entero("num_factura")));
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        EXPECT_FALSE(numeros.contains(venta.entero("numero")));
    EXPECT_EQ(notas > 5, comercio());
    EXPECT_GT(notas, 0);
    EXPECT_GT(aparcados, 0);
}

TEST_P(NotasDeLaDemo, NotesHoldWhatSalesHold)
{
    std::set<int> notas;
    std::set<int> pagos;
    for (const Fila& nota : filas(tablas::CabeceraFacturaTemp)) {
        if (nota.nulo("num_albaran") || nota.entero("num_albaran") == 0)
            continue;
        notas.insert(nota.entero("numero"));
        pagos.insert(nota.entero("pago"));
    }
    std::set<QString> tipos;
    for (const Fila& linea : filas(tablas::DetalleFacturaTemp)) {
        if (notas.contains(linea.entero("num_factura")))
            tipos.insert(linea.texto("tipo_venta"));
    }
    if (!comercio())
        return;
    EXPECT_TRUE(pagos.contains(4));
    EXPECT_TRUE(tipos.contains(QStringLiteral("F")) && tipos.contains(QStringLiteral("SP")));
    const bool bonos = GetParam() == TipoTienda::Perfumeria;
    EXPECT_EQ(tipos.contains(QStringLiteral("B")) && tipos.contains(QStringLiteral("CB")), bonos);
}

} // namespace
} // namespace kestrane::demo::pruebas
