#pragma once

#include "instalacion/demo/azar.h"
#include "instalacion/demo/destino.h"
#include "instalacion/demo/parametros.h"

#include <QString>

#include <vector>

namespace kestrane::demo {

struct Empleado
{
    int codigo = 0;
    int tienda = 0;
    QString nombre;
    QString apellidos;  // null: none
    QString enElTicket; // as lines of sale name the employee
    Fecha alta;
    Fecha baja;    // the zero date while employed
    int libra = 0; // weekday off, 1 to 6

    [[nodiscard]] bool despedido() const { return baja != Fecha{}; }
};

/// The people who work in the stores; some came or went in the period.
class Plantilla
{
public:
    Plantilla(const Sabor& sabor, int tiendas, Fecha hoy, Azar azar);

    /// Those who work in a store on a day, at least one.
    [[nodiscard]] std::vector<const Empleado*> deTurno(int tienda, Fecha fecha) const;
    [[nodiscard]] const std::vector<Empleado>& todos() const { return m_empleados; }

    /// The tables `empleados` and `sueldos`.
    void escribe(Destino& destino) const;

private:
    void contrata(int tienda, Fecha hoy, Azar& azar);
    void escribeEmpleado(Destino& destino, const Empleado& empleado, Azar& azar) const;

    const Sabor& m_sabor;
    Azar m_azar;
    Fecha m_hoy;
    std::vector<Empleado> m_empleados;
    std::vector<std::vector<int>> m_porTienda;
};

} // namespace kestrane::demo
