#include "instalacion/demo/mes_de_cada_sabor.h"

#include <algorithm>
#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(ClientelaDeLaDemo);

TEST_P(ClientelaDeLaDemo, TheLastVisitOfAClientIsTheLastSaleOrReturnedMemory)
{
    std::map<int, Fecha> ultimas;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        ultimas[venta.entero("cliente")] = std::max(ultimas[venta.entero("cliente")], venta.fecha("fechaventa"));
    int lejanos = 0;
    for (const Fila& cliente : filas(tablas::Clientes)) {
        const auto venta = ultimas.find(cliente.entero("codigo"));
        if (venta != ultimas.end()) {
            EXPECT_LE(venta->second, cliente.fecha("ultimavisita")) << cliente.entero("codigo");
        }
        lejanos += venta != ultimas.end() && venta->second < hoy().masDias(-60) ? 1 : 0;
    }
    EXPECT_GT(lejanos, 0); // the lost ones
}

} // namespace
} // namespace kestrane::demo::pruebas
