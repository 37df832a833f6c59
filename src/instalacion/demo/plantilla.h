#pragma once

#include "instalacion/demo/azar.h"
#include "instalacion/demo/destino.h"
#include "instalacion/demo/parametros.h"
#include "instalacion/demo/sabor.h"

#include <QString>

#include <optional>
#include <vector>

namespace kestrane::demo {

/// A person who left so long ago that no card is left, and whose code some rows still bear.
inline constexpr int EmpleadoSinFicha = 4;

struct Empleado
{
    int codigo = 0;
    int tienda = 0;
    bool mujer = true;
    QString nombre;
    QString apellidos;  // null: none
    QString enElTicket; // as lines of sale name the employee
    const DatosCategoria* categoria = nullptr;
    Fecha alta;
    Fecha baja;      // the zero date while employed
    int libra = 0;   // weekday off, 1 to 4
    int minutos = 0; // of services, on the day in course

    [[nodiscard]] bool despedido() const { return baja != Fecha{}; }
    [[nodiscard]] bool trabaja(Fecha fecha) const { return alta <= fecha && (!despedido() || fecha < baja); }
};

/// Those who work in a store on a day.
using Turnantes = std::vector<const Empleado*>;

/// The people who work in the stores; some came or went in the period.
class Plantilla
{
public:
    Plantilla(const Sabor& datos, int tiendas, Fecha hoy, Azar azar);

    /// At least one.
    [[nodiscard]] Turnantes deTurno(int tienda, Fecha fecha) const;
    /// A day begins in a store: nobody has worked yet.
    void amanece(int tienda);
    /// Who gives a service of so many minutes, and is the busier for it: of those whose trade it is the one whom the client is used
    /// to, when there is time; else one of those who have worked least. `gusto` tells clients apart, below 0 there is no such
    /// habit.
    const Empleado& atiende(const Turnantes& turno, int seccion, int minutos, int gusto, Azar& azar);
    /// Whom a client looks for (for something of a section): always the same person; null when that one is not there.
    [[nodiscard]] const Empleado* habitual(const Turnantes& turno, int gusto, std::optional<int> seccion = {}) const;
    [[nodiscard]] const std::vector<Empleado>& todos() const { return m_empleados; }

    /// The tables `empleados` and `sueldos`.
    void escribe(Destino& destino) const;

private:
    void contrata(int tienda, int cuantos, Azar& azar);
    void bautiza(Empleado& empleado, int lugar, Azar& azar) const;
    void escribeEmpleado(Destino& destino, const Empleado& empleado, Azar& azar) const;

    const Sabor& m_sabor;
    Azar m_azar;
    Fecha m_hoy;
    std::vector<Empleado> m_empleados;
    std::vector<std::vector<int>> m_porTienda;
};

} // namespace kestrane::demo
