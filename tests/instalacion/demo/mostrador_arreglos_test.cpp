#include "instalacion/demo/mes_de_cada_sabor.h"

#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(ArreglosDeLaDemo);

TEST_P(ArreglosDeLaDemo, LinesOfServiceNameTheirRepairAndRepairsExist)
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

TEST_P(ArreglosDeLaDemo, ARepairIsDoneToSomethingThatHasASize)
{
    const auto conTallas = codigos(filas(tablas::Productostextil), "codigopadre");
    for (const Fila& arreglo : filas(tablas::ArreglosProductos))
        EXPECT_TRUE(conTallas.contains(arreglo.entero("cod_producto"))) << arreglo.entero("cod_producto");
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        const bool arreglable =
            linea.texto("tipo_venta") == u"S" && linea.texto("producto").startsWith(QStringLiteral("Coger Bajo"));
        EXPECT_TRUE(!arreglable || linea.entero("num_arreglo") > 0) << linea.entero("num_factura");
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
