#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(MostradorDeLaDemo);

TEST_P(MostradorDeLaDemo, EveryKindOfLineOfTheTradeIsSold)
{
    std::set<QString> vistas;
    for (const Fila& linea : filas(tablas::DetalleFactura))
        vistas.insert(linea.texto("tipo_venta"));
    std::set<QString> esperadas{QStringLiteral("P"), QStringLiteral("S"), QStringLiteral("F"), QStringLiteral("SF")};
    if (!comercio() || GetParam() == TipoTienda::Perfumeria)
        for (const auto* tipo : {u"B", u"CB", u"BF", u"CBF", u"CSF"})
            esperadas.insert(QString::fromUtf16(tipo));
    if (GetParam() == TipoTienda::Spa)
        esperadas.insert({QStringLiteral("PSPA"), QStringLiteral("CPSPA")});
    EXPECT_EQ(vistas, esperadas);
}

TEST_P(MostradorDeLaDemo, SalesHaveTheTraitsThatReportsLookFor)
{
    int conNota = 0;
    int comoVenta = 0;
    int aparte = 0;
    int conDescuento = 0;
    int sinCliente = 0;
    for (const Fila& venta : filas(tablas::CabeceraFactura)) {
        conNota += !venta.nulo("num_albaran") && venta.entero("num_albaran") > 0 ? 1 : 0;
        comoVenta += !venta.nulo("caracteristicaventa") && venta.texto("caracteristicaventa") == u"DV" ? 1 : 0;
        aparte += venta.si("impuestoincluido") ? 0 : 1;
        conDescuento += venta.doble("descuento") > 0 ? 1 : 0;
        sinCliente += venta.entero("cliente") == 0 ? 1 : 0;
        if (!venta.nulo("fecha")) {
            EXPECT_LE(venta.fecha("fechaventa"), venta.fecha("fecha"));
            EXPECT_LE(venta.fecha("fecha"), hoy());
        }
        EXPECT_TRUE(venta.fecha("fechaventa").esMedianoche());
    }
    EXPECT_GT(comoVenta, 0);
    EXPECT_GT(conDescuento, 10);
    EXPECT_GT(sinCliente, 10);
    EXPECT_EQ(conNota > 0, comercio());
    if (comercio()) {
        EXPECT_GT(aparte, 0);
    }
}

TEST_P(MostradorDeLaDemo, SomeTicketHasNoLines)
{
    std::set<int> conLineas;
    for (const Fila& linea : filas(tablas::DetalleFactura))
        conLineas.insert(linea.entero("num_factura"));
    int vacios = 0;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        vacios += conLineas.contains(venta.entero("numero")) ? 0 : 1;
    EXPECT_GT(vacios, 0);
    EXPECT_LT(vacios, 40);
}

} // namespace
} // namespace kestrane::demo::pruebas
