#include "instalacion/demo/calendario.h"
#include "instalacion/demo/mes_de_cada_sabor.h"
#include "instalacion/demo/plantilla.h"

#include <algorithm>
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

TEST_P(AgendaDeLaDemo, NobodyIsBookedTwiceAtATimeNorWhileTheShopIsShut)
{
    std::map<int, int> minutos;
    for (const Fila& servicio : filas(tablas::Servicios))
        minutos[servicio.entero("codigo")] = servicio.valor("duracion").entero16();
    std::map<std::pair<int, Fecha>, std::vector<std::pair<int, int>>> libro;
    for (const Fila& cita : filas(tablas::Agenda)) {
        if (cita.entero("servicio") == 0 || cita.entero("empleado") == EmpleadoSinFicha)
            continue;
        const int desde = cita.fecha("hora_inicio").segundoDelDia() / 60;
        libro[{cita.entero("empleado"), cita.fecha("fecha")}].emplace_back(desde, desde + minutos[cita.entero("servicio")]);
    }
    const Calendario calendario{Parametros{.tipo = GetParam()}, datos()};
    for (auto& [quien, citas] : libro) {
        std::ranges::sort(citas);
        for (std::size_t i = 0; i < citas.size(); ++i) {
            EXPECT_TRUE(i == 0 || citas[i - 1].second <= citas[i].first) << quien.first;
            EXPECT_TRUE(calendario.atiende(quien.second, citas[i].first, citas[i].second)) << quien.first << ' ' << citas[i].first;
        }
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
