#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>
#include <set>
#include <tuple>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(AgendaDeLaDemo);

TEST_P(AgendaDeLaDemo, AnAppointmentHasItsPeopleAndThereAreOldNewCancelledAndMissedOnes)
{
    std::set<std::tuple<int, Fecha, int>> vendidos;
    std::map<int, std::pair<int, Fecha>> ventas;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        ventas[venta.entero("numero")] = {venta.entero("cliente"), venta.fecha("fechaventa")};
    for (const Fila& linea : filas(tablas::DetalleFactura))
        vendidos.insert(
            {ventas[linea.entero("num_factura")].first, ventas[linea.entero("num_factura")].second, linea.entero("codigo")});
    const auto clientes = codigos(filas(tablas::Clientes));
    const auto servicios = codigos(filas(tablas::Servicios));
    int futuras = 0;
    int anuladas = 0;
    int ausentes = 0;
    int conTexto = 0;
    for (const Fila& cita : filas(tablas::Agenda)) {
        EXPECT_TRUE(clientes.contains(cita.entero("cliente")));
        EXPECT_TRUE(cita.entero("servicio") == 0 || servicios.contains(cita.entero("servicio")));
        EXPECT_EQ(cita.fecha("hora_inicio").segundoDelDia() % 900, 0);
        futuras += cita.fecha("fecha") > hoy() ? 1 : 0;
        anuladas += cita.si("anulado") ? 1 : 0;
        conTexto += cita.entero("servicio") == 0 && !cita.nulo("motivo") ? 1 : 0;
        const bool vino = vendidos.contains({cita.entero("cliente"), cita.fecha("fecha"), cita.entero("servicio")});
        ausentes += cita.fecha("fecha") <= hoy() && !cita.si("anulado") && cita.entero("servicio") != 0 && !vino ? 1 : 0;
    }
    EXPECT_GT(futuras, 3);
    EXPECT_GT(anuladas, 1);
    EXPECT_GT(ausentes, 1);
    EXPECT_GT(conTexto, 1);
}

} // namespace
} // namespace kestrane::demo::pruebas
