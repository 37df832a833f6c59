#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(BonosDeLaDemo);

TEST_P(BonosDeLaDemo, UsesOfABonoStayWithinItsSessionsAndItsTime)
{
    std::map<int, Fila> ventas;
    for (const TablaDemo* tabla : {&tablas::CabeceraFactura, &tablas::CabeceraFacturaAnulaciones}) {
        for (const Fila& venta : filas(*tabla))
            ventas.emplace(venta.entero("numero"), venta);
    }
    std::map<int, std::vector<Fecha>> usos;
    for (const Fila& uso : filas(tablas::DetalleBono))
        usos[uso.entero("num_bono")].push_back(uso.fecha("fecha_consumo"));
    int activos = 0;
    int caducados = 0;
    for (const Fila& bono : filas(tablas::CabeceraBonos)) {
        EXPECT_NE(bono.entero("servicio") == 0, bono.entero("familia") == 0);
        EXPECT_EQ(ventas.at(bono.entero("num_factura")).entero("cliente"), bono.entero("cliente"));
        const auto& suyos = usos[bono.entero("numbono")];
        EXPECT_LE(static_cast<int>(suyos.size()), bono.entero("num_sesiones"));
        for (const Fecha uso : suyos)
            EXPECT_TRUE(bono.fecha("fecha_alta") < uso && uso <= bono.fecha("fecha_hasta"));
        const bool agotado = static_cast<int>(suyos.size()) == bono.entero("num_sesiones") || bono.fecha("fecha_hasta") < hoy();
        EXPECT_TRUE(!agotado || bono.si("estado"));
        (bono.si("estado") ? caducados : activos) += 1;
    }
    int consumos = 0;
    for (const Fila& linea : filas(tablas::DetalleFactura))
        consumos += linea.texto("tipo_venta") == u"CB" || linea.texto("tipo_venta") == u"CBF" ? 1 : 0;
    EXPECT_EQ(consumos, static_cast<int>(filas(tablas::DetalleBono).size()));
    const bool vendeBonos = !comercio() || GetParam() == TipoTienda::Perfumeria;
    EXPECT_EQ(activos > 0, vendeBonos);
    EXPECT_EQ(caducados > 0, vendeBonos);
}

} // namespace
} // namespace kestrane::demo::pruebas
