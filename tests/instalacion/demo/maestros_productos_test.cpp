#include "instalacion/demo/mes_de_cada_sabor.h"

#include <algorithm>
#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(ProductosDeLaDemo);

TEST_P(ProductosDeLaDemo, ProductsShowEveryCaseOfTheirListings)
{
    const auto productos = filas(tablas::Productos);
    const auto conClase = [](int clase) { return [clase](const Fila& fila) { return fila.entero("tipoprod") == clase; }; };
    for (const int clase : {0, 1, 2})
        EXPECT_GT(cuantas(productos, conClase(clase)), 0) << clase;
    EXPECT_GT(cuantas(productos, [](const Fila& fila) { return fila.doble("stock") <= fila.doble("stockminimo"); }), 1);
    EXPECT_GT(cuantas(productos, [](const Fila& fila) { return fila.doble("stockconsumointerno") > 0; }), 1);
    EXPECT_GT(cuantas(productos, [](const Fila& fila) { return fila.nulo("codigocliente"); }), 0);
    EXPECT_GT(cuantas(productos, [](const Fila& fila) { return fila.nulo("precio"); }), 0);
    EXPECT_EQ(cuantas(productos, [](const Fila& fila) { return fila.si("borrar"); }), 1);
    EXPECT_EQ(cuantas(productos, [](const Fila& fila) { return fila.entero("modoventa") == 1; }) > 0,
              datos().oficio == Oficio::Alimentacion);
    std::map<QString, std::set<int>> porBarras;
    for (const Fila& extra : filas(tablas::ProductosCodigosextra))
        porBarras[extra.texto("codigo_extra")].insert(extra.entero("codigo"));
    EXPECT_TRUE(std::any_of(porBarras.begin(), porBarras.end(), [](const auto& par) { return par.second.size() == 2; }));
    EXPECT_EQ(codigos(filas(tablas::DetallePrecio), "identificador"), (std::set<int>{1, 2}));
}

} // namespace
} // namespace kestrane::demo::pruebas
