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
        EXPECT_EQ(venta.fecha("fechaventa"), venta.fecha("fecha"));
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

TEST_P(MostradorDeLaDemo, LinesOfServiceNameTheirRepairAndRepairsExist)
{
    std::set<int> arreglos;
    const auto talleres = codigos(filas(tablas::Talleres));
    const auto productos = codigos(filas(tablas::Productos));
    for (const Fila& arreglo : filas(tablas::ArreglosProductos)) {
        arreglos.insert(arreglo.entero("num_arreglo"));
        EXPECT_TRUE(talleres.contains(arreglo.entero("cod_taller")));
        EXPECT_TRUE(productos.contains(arreglo.entero("cod_producto")));
    }
    EXPECT_EQ(!arreglos.empty(), datos().oficio == Oficio::TallaColor);
    std::set<int> usados;
    for (const TablaDemo* tabla :
         {&tablas::DetalleFactura, &tablas::DetalleFacturaAnulaciones, &tablas::DetalleFacturaTemp, &tablas::DetalleAbono}) {
        for (const Fila& linea : filas(*tabla)) {
            const bool servicio = linea.nulo("tipo_venta") || linea.texto("tipo_venta") == u"S";
            EXPECT_TRUE(!servicio || linea.nulo("tipo_venta") || !linea.nulo("num_arreglo"));
            if (!linea.nulo("num_arreglo") && linea.entero("num_arreglo") > 0)
                usados.insert(linea.entero("num_arreglo"));
        }
    }
    EXPECT_EQ(usados, arreglos);
}

TEST_P(MostradorDeLaDemo, DeliveryNotesWaitInTheShopsAlone)
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
    EXPECT_EQ(aparcados > 0, comercio());
}

} // namespace
} // namespace kestrane::demo::pruebas
