#include "instalacion/demo/mes_de_cada_sabor.h"

#include <algorithm>
#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(CajaDeLaDemo);

TEST_P(CajaDeLaDemo, EachStoreOpensItsDrawerOncePerDayOfSales)
{
    std::set<std::pair<QString, Fecha>> conVentas;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        conVentas.insert({venta.texto("tienda"), venta.fecha("fechaventa")});
    std::set<std::pair<QString, Fecha>> abiertas;
    for (const Fila& caja : filas(tablas::CajaInicial)) {
        EXPECT_TRUE(abiertas.insert({caja.texto("tienda"), caja.fecha("fecha")}).second);
        EXPECT_GT(caja.doble("importe"), 0);
    }
    EXPECT_EQ(abiertas, conVentas);
}

TEST_P(CajaDeLaDemo, TheDrawerNeverGivesMoreThanItHolds)
{
    std::map<std::pair<QString, Fecha>, double> caja;
    for (const Fila& inicial : filas(tablas::CajaInicial))
        caja[{inicial.texto("tienda"), inicial.fecha("fecha")}] += inicial.doble("importe");
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        caja[{venta.texto("tienda"), venta.fecha("fechaventa")}] += venta.doble("efectivo");
    for (const Fila& pago : filas(tablas::DetallePago))
        caja[{pago.texto("tienda"), pago.fecha("fecha")}] += pago.doble("efectivo");
    for (const Fila& retirada : filas(tablas::Retiradas)) {
        EXPECT_GT(retirada.doble("importe"), 0);
        caja[{retirada.texto("tienda"), retirada.fecha("fecha")}] -= retirada.doble("importe");
    }
    for (const auto& [dia, queda] : caja)
        EXPECT_GE(queda, 0) << dia.first.toStdString() << ' ' << dia.second.dia() << '/' << dia.second.mes();
}

TEST_P(CajaDeLaDemo, TodayHasEveryMovementOfTheDrawer)
{
    const auto deHoy = [](const TablaDemo& tabla, const char* columna) {
        const auto todas = filas(tabla);
        return std::count_if(todas.begin(), todas.end(), [&](const Fila& fila) { return fila.valor(columna) == Valor{hoy()}; });
    };
    EXPECT_GT(deHoy(tablas::Gastos, "fecha"), 1);
    EXPECT_GT(deHoy(tablas::Retiradas, "fecha"), 0);
    EXPECT_GT(deHoy(tablas::Observacioncaja, "fecha"), 0);
    EXPECT_GT(deHoy(tablas::DetallePago, "fecha"), 0);
    EXPECT_GT(deHoy(tablas::CabeceraPago, "fecha"), 0);
    EXPECT_GT(deHoy(tablas::CabeceraAbono, "fechaventa"), 1);
    EXPECT_GT(deHoy(tablas::CabeceraFacturaAnulaciones, "fechaventa"), 1);
    EXPECT_EQ(deHoy(tablas::CabeceraFacturaTemp, "fecha") > 0, comercio());
}

} // namespace
} // namespace kestrane::demo::pruebas
