#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(PlantillaDeLaDemo);

TEST_P(PlantillaDeLaDemo, StaffComesAndGoesAndSellsOnlyWhileItIsThere)
{
    std::map<int, Fila> empleados;
    for (const Fila& empleado : filas(tablas::Empleados))
        empleados.emplace(empleado.entero("codigo"), empleado);
    const auto todos = filas(tablas::Empleados);
    EXPECT_GT(cuantas(todos, [](const Fila& fila) { return fila.nulo("apellidos"); }), 0);
    EXPECT_GT(cuantas(todos, [](const Fila& fila) { return fila.si("baja"); }), 0);
    EXPECT_GT(cuantas(todos, [](const Fila& fila) { return fila.nulo("emp_color"); }), 0);
    for (const Fila& venta : filas(tablas::CabeceraFactura)) {
        const Fila& empleado = empleados.at(venta.entero("empleado"));
        EXPECT_TRUE(!empleado.si("baja") || venta.fecha("fechaventa") < empleado.fecha("fechabaja"));
    }
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        if (linea.entero("codempleado") == -1)
            continue;
        const Fila& empleado = empleados.at(linea.entero("codempleado"));
        EXPECT_TRUE(linea.texto("nombreempleado").startsWith(empleado.texto("nombre")));
    }
    std::map<int, int> pasos;
    for (const Fila& paso : filas(tablas::Sueldos))
        ++pasos[paso.entero("codempleado")];
    EXPECT_FALSE(pasos.empty());
    EXPECT_LT(pasos.size(), empleados.size());
    for (const auto& [codigo, cuantos] : pasos)
        EXPECT_EQ(cuantos, 4) << codigo;
}

TEST_P(PlantillaDeLaDemo, WorkIsSharedOutAndNobodyWorksDayAndNight)
{
    std::map<int, int> minutos;
    for (const Fila& servicio : filas(tablas::Servicios))
        minutos[servicio.entero("codigo")] = servicio.valor("duracion").entero16();
    std::map<int, Fecha> dias;
    for (const Fila& venta : filas(tablas::CabeceraFactura))
        dias[venta.entero("numero")] = venta.fecha("fechaventa");
    std::map<std::pair<int, Fecha>, double> jornadas;
    std::map<int, int> lineas;
    int deUno = 0;
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        const QString tipo = linea.texto("tipo_venta");
        if (linea.entero("codempleado") == -1 || tipo == u"B")
            continue;
        ++deUno;
        ++lineas[linea.entero("codempleado")];
        if (tipo == u"S" || tipo == u"CB" || tipo == u"SF" || tipo == u"CSF" || tipo == u"CPSPA")
            jornadas[{linea.entero("codempleado"), dias[linea.entero("num_factura")]}] += minutos[linea.entero("codigo")];
    }
    int largas = 0;
    for (const auto& [quien, trabajo] : jornadas)
        largas += trabajo > 600 ? 1 : 0;
    EXPECT_LT(largas, static_cast<int>(jornadas.size()) / 50 + 1);
    for (const auto& [quien, suyas] : lineas)
        EXPECT_LT(suyas, deUno * 3 / 10) << quien;
}

TEST_P(PlantillaDeLaDemo, NobodyWasHiredAsAChild)
{
    for (const Fila& empleado : filas(tablas::Empleados)) {
        if (!empleado.nulo("fechanacimiento")) {
            EXPECT_GT(empleado.fecha("fechaalta"), empleado.fecha("fechanacimiento").masDias(18 * 365));
        }
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
