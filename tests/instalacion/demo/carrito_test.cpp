#include "instalacion/demo/mes_de_cada_sabor.h"

#include <cmath>
#include <map>
#include <tuple>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(LineasDeLaDemo);

using Clave = std::tuple<int, int, QString>; // sale, code, kind

TEST_P(LineasDeLaDemo, ALineCostsItsUnitsLessItsDiscountAndTheTaxOnTopWhenItIsNotIncluded)
{
    std::map<int, bool> incluido;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        incluido[venta.entero("numero")] = venta.si("impuestoincluido");
    int aparte = 0;
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        const double base = linea.doble("unidades") * linea.doble("precio_unit") - linea.doble("descuento");
        const double impuestos = linea.doble("impuesto") + linea.doble("impuesto_2");
        const bool conImpuesto = linea.doble("precio") == base;
        const bool sinImpuesto =
            !incluido[linea.entero("num_factura")] && std::abs(linea.doble("precio") - base - impuestos) < 0.25;
        EXPECT_TRUE(conImpuesto || sinImpuesto) << linea.entero("num_factura") << ' ' << linea.texto("producto").toStdString();
        aparte += sinImpuesto && !conImpuesto ? 1 : 0;
    }
    if (comercio()) {
        EXPECT_GT(aparte, 0);
    }
}

TEST_P(LineasDeLaDemo, ASharedLineHasNoEmployeeAndItsSharesAddUpToIt)
{
    std::map<Clave, double> partes;
    for (const Fila& parte : filas(tablas::VentasCompartidas))
        partes[{parte.entero("num_factura"), parte.entero("cod_detalle"), parte.texto("tipo_venta")}] += parte.doble("importe");
    int compartidas = 0;
    for (const TablaDemo* tabla : {&tablas::DetalleFactura, &tablas::DetalleFacturaAnulaciones, &tablas::DetalleFacturaTemp}) {
        for (const Fila& linea : filas(*tabla)) {
            const bool compartida = linea.entero("codempleado") == -1;
            EXPECT_EQ(compartida, linea.texto("nombreempleado").isEmpty());
            if (!compartida || linea.nulo("tipo_venta"))
                continue;
            ++compartidas;
            EXPECT_EQ((partes[{linea.entero("num_factura"), linea.entero("codigo"), linea.texto("tipo_venta")}]),
                      linea.doble("precio"));
        }
    }
    EXPECT_GT(compartidas, 3);
}

} // namespace
} // namespace kestrane::demo::pruebas
