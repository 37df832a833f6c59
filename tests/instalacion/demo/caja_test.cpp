#include "instalacion/demo/mes_de_cada_sabor.h"

#include <algorithm>
#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

/// Stores by the numbers of their tickets, some of which have lost the name.
class CajaDeLaDemo : public MesDeCadaSabor
{
protected:
    [[nodiscard]] static std::map<int, QString> nombres()
    {
        std::map<int, QString> todos;
        for (const Fila& venta : filas(tablas::CabeceraFactura)) {
            if (!venta.nulo("tienda"))
                todos[venta.entero("numero") / 100'000] = venta.texto("tienda");
        }
        return todos;
    }
};

INSTANTIATE_TEST_SUITE_P(Sabores, CajaDeLaDemo, testing::ValuesIn(TodosLosTipos),
                         [](const auto& caso) { return nombreDeCaso(caso.param); });

TEST_P(CajaDeLaDemo, EachStoreOpensItsDrawerOncePerDayOfSales)
{
    std::set<std::pair<QString, Fecha>> conVentas;
    for (const Fila& venta : filas(tablas::CabeceraFactura)) {
        if (!venta.nulo("tienda"))
            conVentas.insert({venta.texto("tienda"), venta.fecha("fechaventa")});
    }
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
    const auto tiendas = nombres();
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        caja[{tiendas.at(venta.entero("numero") / 100'000), venta.fecha("fechaventa")}] += venta.doble("efectivo");
    for (const Fila& pago : filas(tablas::DetallePago))
        caja[{pago.texto("tienda"), pago.fecha("fecha")}] += pago.doble("efectivo");
    for (const Fila& retirada : filas(tablas::Retiradas)) {
        EXPECT_GT(retirada.doble("importe"), 0);
        caja[{retirada.texto("tienda"), retirada.fecha("fecha")}] -= retirada.doble("importe");
    }
    for (const auto& [dia, queda] : caja)
        EXPECT_GE(queda, 0) << dia.first.toStdString() << ' ' << dia.second.dia() << '/' << dia.second.mes();
}

TEST_P(CajaDeLaDemo, WhatIsLeftInTheDrawerOpensTheNextDayUnlessItIsTooLittle)
{
    constexpr double Cambio = 120;
    constexpr double CambioMin = 40;
    std::map<int, double> pendiente;
    for (const Fila& deuda : filas(tablas::CabeceraPago))
        pendiente[deuda.entero("num_factura")] += deuda.doble("importe");
    std::map<QString, std::map<Fecha, double>> dias; // what a day left, but for the opening cash
    const auto tiendas = nombres();
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        dias[tiendas.at(venta.entero("numero") / 100'000)][venta.fecha("fechaventa")] +=
            std::max(venta.doble("efectivo") - pendiente[venta.entero("numero")], std::min(venta.doble("efectivo"), 0.0));
    for (const Fila& pago : filas(tablas::DetallePago))
        dias[pago.texto("tienda")][pago.fecha("fecha")] += pago.doble("efectivo");
    std::multimap<std::pair<int, Fecha>, double> vales;
    for (const Fila& vale : filas(tablas::ValesDescuento))
        vales.emplace(std::pair{vale.entero("num_factura"), vale.fecha("desde")}, vale.doble("descuento"));
    for (const Fila& abono : filas(tablas::CabeceraAbono)) {
        const auto [desde, hasta] = vales.equal_range({abono.entero("num_factura"), abono.fecha("fechaventa")});
        const auto suyo = std::find_if(desde, hasta, [&](const auto& vale) { return vale.second == abono.doble("total"); });
        if (suyo != hasta)
            vales.erase(suyo);
        else
            dias[abono.texto("tienda")][abono.fecha("fechaventa")] -= abono.doble("efectivo");
    }
    for (const TablaDemo* tabla : {&tablas::Gastos, &tablas::Retiradas}) {
        for (const Fila& fila : filas(*tabla))
            dias[fila.texto("tienda")][fila.fecha("fecha")] -= fila.doble("importe");
    }
    std::map<QString, std::map<Fecha, double>> aperturas;
    for (const Fila& caja : filas(tablas::CajaInicial))
        aperturas[caja.texto("tienda")][caja.fecha("fecha")] = caja.doble("importe");
    for (const auto& [tienda, suyas] : aperturas) {
        double esperado = Cambio;
        for (const auto& [fecha, apertura] : suyas) {
            EXPECT_EQ(apertura, esperado) << tienda.toStdString() << ' ' << fecha.dia() << '/' << fecha.mes();
            const double queda = apertura + dias[tienda][fecha];
            esperado = queda < CambioMin ? Cambio : queda;
        }
    }
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
    EXPECT_GT(deHoy(tablas::CabeceraFacturaTemp, "fecha"), 0);
}

} // namespace
} // namespace kestrane::demo::pruebas
