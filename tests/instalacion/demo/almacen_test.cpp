#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(AlmacenDeLaDemo);

TEST_P(AlmacenDeLaDemo, TheStockHistoryHasEveryMovementAndFollowsTheSales)
{
    std::map<int, int> movimientos;
    std::map<int, int> deHoy;
    double vendido = 0;
    double devuelto = 0;
    int conPedido = 0;
    int directas = 0;
    for (const Fila& apunte : filas(tablas::Historicostock)) {
        const int codigo = apunte.entero("descripciontipo");
        ++movimientos[codigo];
        deHoy[codigo] += apunte.fecha("fecha") == hoy() ? 1 : 0;
        vendido -= codigo == 2 ? apunte.doble("cantidad") : 0;
        devuelto += codigo == 11 ? apunte.doble("cantidad") : 0;
        const bool pedido = !apunte.nulo("pedido") && apunte.entero("pedido") > 0;
        conPedido += codigo == 1 && pedido ? 1 : 0;
        directas += codigo == 1 && !pedido ? 1 : 0;
    }
    for (const int codigo : {1, 2, 3, 4, 5, 6, 7, 9, 11})
        EXPECT_GT(movimientos[codigo], 0) << codigo;
    for (const int codigo : {1, 2, 3, 4, 5, 6, 7, 9})
        EXPECT_GT(deHoy[codigo], 0) << codigo;
    EXPECT_EQ(movimientos.size(), 9U);
    EXPECT_GT(conPedido, 0);
    EXPECT_GT(directas, 0);
    double lineas = 0;
    for (const Fila& linea : filas(tablas::DetalleFactura))
        lineas += linea.texto("tipo_venta") == u"P" ? linea.doble("unidades") : 0;
    EXPECT_EQ(vendido, lineas);
    double abonadas = 0;
    for (const Fila& linea : filas(tablas::DetalleAbono))
        abonadas += linea.texto("tipo_venta") == u"P" ? linea.doble("unidades") : 0;
    EXPECT_EQ(devuelto, abonadas);
}

} // namespace
} // namespace kestrane::demo::pruebas
