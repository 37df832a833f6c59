#include "instalacion/demo/mes_de_cada_sabor.h"

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(FichasDeLaDemo);

TEST_P(FichasDeLaDemo, ClientsShowEveryCaseOfTheirListings)
{
    const auto clientes = filas(tablas::Clientes);
    const Fecha siglo = *Fecha::deCalendario(1900, 1, 1);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return fila.nulo("nacimiento"); }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return fila.nulo("email"); }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return !fila.nulo("email") && fila.texto("email").isEmpty(); }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return !fila.nulo("email") && fila.texto("email").contains(u'@'); }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return !fila.nulo("etiquetas") && fila.texto("etiquetas") == u"NO"; }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return fila.nulo("etiquetas"); }), 0);
    if (clientes.size() < 400)
        return; // the rarer cases are for the larger shops
    EXPECT_GT(cuantas(clientes, [&](const Fila& fila) { return !fila.nulo("nacimiento") && fila.fecha("nacimiento") < siglo; }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return fila.nulo("tienda"); }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return fila.nulo("codigocliente"); }), 0);
    EXPECT_GT(cuantas(clientes, [](const Fila& fila) { return fila.si("borrar"); }), 0);
}

} // namespace
} // namespace kestrane::demo::pruebas
