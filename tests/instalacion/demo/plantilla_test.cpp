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

} // namespace
} // namespace kestrane::demo::pruebas
