#include "instalacion/demo/plantilla.h"

#include "instalacion/demo/calendario.h"
#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int Encargado = 0; // the first of a store never leaves
constexpr QStringView observaciones[] = {u"", u"Media jornada por las tardes", u"Llave de la tienda", u"Contrato en prácticas",
                                         u"Jornada reducida por cuidado de hijos"};

constexpr QStringView colores[] = {u"16761024", u"12632319", u"12648384", u"12648447"};

} // namespace

Plantilla::Plantilla(const Sabor& datos, int tiendas, Fecha hoy, Azar azar)
    : m_sabor{datos}
    , m_azar{azar.rama(1)}
    , m_hoy{hoy}
    , m_porTienda(static_cast<std::size_t>(tiendas))
{
    for (int tienda = 0; tienda < tiendas; ++tienda) {
        const int cuantos = datos.ritmo.empleados + (tienda % 3 == 2 ? 1 : 0) + 1;
        for (int i = 0; i < cuantos; ++i)
            contrata(tienda, hoy, azar);
    }
}

void Plantilla::contrata(int tienda, Fecha hoy, Azar& azar)
{
    auto& suyos = m_porTienda[static_cast<std::size_t>(tienda)];
    const int lugar = static_cast<int>(suyos.size());
    Empleado empleado;
    empleado.codigo = static_cast<int>(m_empleados.size()) + 1;
    empleado.tienda = tienda;
    empleado.nombre = (azar.porCien(65) ? azar.elige(nombresDeMujer()) : azar.elige(nombresDeHombre())).toString();
    const QString primero = azar.elige(apellidos()).toString();
    if (lugar != 3)
        empleado.apellidos = juntos(primero, azar.elige(apellidos()));
    empleado.enElTicket = lugar == 3 ? empleado.nombre : juntos(empleado.nombre, primero);
    empleado.alta = hoy.masDias(-azar.entre(200, 4200));
    empleado.libra = (lugar + tienda) % 6 + 1;
    if (lugar == 2)
        empleado.baja = hoy.masDias(-azar.entre(20, 150));
    if (lugar == 4)
        empleado.alta = hoy.masDias(-azar.entre(60, 200));
    suyos.push_back(static_cast<int>(m_empleados.size()));
    m_empleados.push_back(std::move(empleado));
}

std::vector<const Empleado*> Plantilla::deTurno(int tienda, Fecha fecha) const
{
    std::vector<const Empleado*> turno;
    const auto& suyos = m_porTienda[static_cast<std::size_t>(tienda)];
    for (const int lugar : suyos) {
        const Empleado& empleado = m_empleados[static_cast<std::size_t>(lugar)];
        const bool trabaja = empleado.alta <= fecha && (!empleado.despedido() || fecha < empleado.baja);
        if (trabaja && empleado.libra != diaSemana(fecha))
            turno.push_back(&empleado);
    }
    if (turno.empty())
        turno.push_back(&m_empleados[static_cast<std::size_t>(suyos[Encargado])]);
    return turno;
}

void Plantilla::escribe(Destino& destino) const
{
    Azar azar = m_azar;
    for (const Empleado& empleado : m_empleados)
        escribeEmpleado(destino, empleado, azar);
    for (const Empleado& empleado : m_empleados) {
        for (int paso = 0; paso < 4 && empleado.codigo % 5 != 0; ++paso)
            destino.fila(tablas::Sueldos, {{empleado.codigo, paso * 2500.0, 1150.0 + empleado.codigo % 4 * 50.0, paso * 2.5}});
    }
}

void Plantilla::escribeEmpleado(Destino& destino, const Empleado& empleado, Azar& azar) const
{
    const Poblacion& poblacion = azar.elige(poblaciones());
    const auto colorPropio = [&]() -> Valor {
        const int caso = empleado.codigo % 4;
        return caso == 0 ? Valor{} : Valor{(caso == 1 ? u""_s : caso == 2 ? u"0"_s : u"-1"_s)};
    };
    const auto color = [&]() -> Valor { return empleado.codigo % 4 == 0 ? Valor{} : Valor{azar.elige(colores).toString()}; };
    const bool mostrar = !empleado.despedido() && empleado.codigo % 9 != 0;
    const QStringView categoria = m_sabor.categorias[static_cast<std::size_t>((empleado.codigo - 1) % m_sabor.categorias.size())];
    const Fecha nacimiento = m_hoy.masDias(-azar.entre(7000, 21000));
    destino.fila(tablas::Empleados,
                 {{empleado.codigo,
                   empleado.nombre,
                   empleado.apellidos.isNull() ? Valor{} : Valor{empleado.apellidos},
                   empleado.despedido(),
                   mostrar,
                   empleado.codigo,
                   empleado.codigo % 3 == 0 ? Valor{} : Valor{u"empleado"_s + QString::number(empleado.codigo % 6 + 1) + u".png"_s},
                   colorPropio(),
                   color(),
                   direccion(azar),
                   poblacion.cp,
                   poblacion.nombre,
                   poblacion.provincia,
                   telefonoFijo(poblacion.prefijo, azar),
                   azar.porCien(85) ? Valor{telefonoMovil(azar)} : Valor{},
                   azar.porCien(90) ? Valor{nacimiento} : Valor{},
                   empleado.alta,
                   empleado.despedido() ? Valor{empleado.baja} : Valor{},
                   nif(azar),
                   u"46/"_s + QString::number(azar.entre(10000000, 99999999)) + u"/"_s + QString::number(azar.entre(10, 99)),
                   categoria,
                   azar.elige(observaciones)}});
}

} // namespace kestrane::demo
