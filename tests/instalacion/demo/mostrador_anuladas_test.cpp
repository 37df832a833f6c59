#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(AnuladasDeLaDemo);

TEST_P(AnuladasDeLaDemo, SalesAreAnnulledInEveryWay)
{
    int renumeradas = 0;
    int marcadas = 0;
    int enCurso = 0;
    int sinFecha = 0;
    int cero = 0;
    for (const Fila& venta : filas(tablas::CabeceraFacturaAnulaciones)) {
        const bool positiva = venta.entero("numero") > 0;
        cero += venta.entero("numero") == 0 ? 1 : 0;
        renumeradas += !positiva && !venta.si("borrar") ? 1 : 0;
        marcadas += positiva && venta.si("borrar") ? 1 : 0;
        enCurso += positiva && !venta.si("borrar") ? 1 : 0;
        sinFecha += venta.nulo("fechaventa") ? 1 : 0;
        EXPECT_FALSE(venta.nulo("fecha"));
    }
    EXPECT_EQ(cero, 1);
    EXPECT_GT(renumeradas, 1);
    EXPECT_GT(marcadas, 1);
    EXPECT_GT(enCurso, 0);
    EXPECT_GT(sinFecha, 0);
}

TEST_P(AnuladasDeLaDemo, EveryKindOfLineThatIsSoldIsAnnulledToo)
{
    std::map<int, Fila> ventas;
    for (const Fila& venta : filas(tablas::CabeceraFacturaAnulaciones)) {
        if ((venta.entero("numero") <= 0 || venta.si("borrar")) && !venta.nulo("fechaventa"))
            ventas.emplace(venta.entero("numero"), venta);
    }
    std::set<QString> anulados;
    bool ingreso = false;
    for (const Fila& linea : filas(tablas::DetalleFacturaAnulaciones)) {
        if (ventas.contains(linea.entero("num_factura")) && !linea.nulo("tipo_venta"))
            anulados.insert(linea.texto("tipo_venta"));
        ingreso = ingreso || (linea.texto("tipo_venta") == u"S" && linea.entero("codigo") == 2);
    }
    for (const Fila& linea : filas(tablas::DetalleFactura))
        EXPECT_TRUE(anulados.contains(linea.texto("tipo_venta"))) << linea.texto("tipo_venta").toStdString();
    EXPECT_TRUE(ingreso);
}

TEST_P(AnuladasDeLaDemo, AnAnnulledSaleLeavesADebtThatNobodyPaysAndABonoThatLapsedAtOnce)
{
    const auto anuladas = codigos(filas(tablas::CabeceraFacturaAnulaciones), "numero");
    const auto vivas = codigos(filas(tablas::CabeceraFactura), "numero");
    int deudas = 0;
    for (const Fila& deuda : filas(tablas::CabeceraPago)) {
        const bool suya = anuladas.contains(deuda.entero("num_factura")) && !vivas.contains(deuda.entero("num_factura"));
        deudas += suya ? 1 : 0;
        EXPECT_TRUE(!suya || deuda.entero("estado") != 0);
    }
    EXPECT_GT(deudas, 0);
    for (const Fila& bono : filas(tablas::CabeceraBonos)) {
        if (anuladas.contains(bono.entero("num_factura")) && !vivas.contains(bono.entero("num_factura"))) {
            EXPECT_EQ(bono.fecha("fecha_hasta"), bono.fecha("fecha_alta"));
            EXPECT_TRUE(bono.si("estado"));
        }
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
