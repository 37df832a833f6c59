#include "instalacion/demo/plantilla.h"

#include "instalacion/demo/calendario.h"
#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int Encargado = 0; // the first of a store never leaves
constexpr int Nuevo = 3;     // the place of the one who came some months ago
constexpr int SinApellidos = 2;
constexpr int JornadaEntera = 440;
constexpr int DiasDelAnio = 365;
constexpr QStringView observaciones[] = {u"", u"Media jornada por las tardes", u"Llave de la tienda", u"Contrato en prácticas",
                                         u"Jornada reducida por cuidado de hijos"};

/// The colour of a button as the cards hold it: the flag and the colour.
struct ColorPropio
{
    std::optional<QStringView> marca;
    std::optional<QStringView> color;
};

constexpr ColorPropio colores[] = {{u"-1", u"16761024"}, {{}, {}},    {u"", u"12632319"},  {u"0", u"12648384"},
                                   {u"-1", u""},         {u"-1", {}}, {u"-1", u"12648447"}};

Valor oNulo(std::optional<QStringView> texto)
{
    return texto ? Valor{*texto} : Valor{};
}

/// The head of a store, then the other categories over and over.
const DatosCategoria& categoriaDe(const Sabor& datos, int lugar)
{
    const auto cuantas = static_cast<int>(datos.categorias.size());
    return datos.categorias[static_cast<std::size_t>(lugar < cuantas ? lugar : 1 + (lugar - cuantas) % (cuantas - 1))];
}

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
            contrata(tienda, cuantos, azar);
    }
}

void Plantilla::contrata(int tienda, int cuantos, Azar& azar)
{
    auto& suyos = m_porTienda[static_cast<std::size_t>(tienda)];
    const int lugar = static_cast<int>(suyos.size());
    Empleado empleado;
    const int orden = static_cast<int>(m_empleados.size()) + 1;
    empleado.codigo = orden < EmpleadoSinFicha ? orden : orden + 1;
    empleado.tienda = tienda;
    empleado.categoria = &categoriaDe(m_sabor, lugar);
    bautiza(empleado, lugar, azar);
    empleado.alta = m_hoy.masDias(-azar.entre(500, 4200));
    empleado.libra = (lugar + lugar / 4 + tienda) % 4 + 1;
    if (lugar == cuantos - 1)
        empleado.baja = m_hoy.masDias(-azar.entre(20, 150));
    if (lugar == Nuevo)
        empleado.alta = m_hoy.masDias(-azar.entre(60, 200));
    suyos.push_back(static_cast<int>(m_empleados.size()));
    m_empleados.push_back(std::move(empleado));
}

void Plantilla::bautiza(Empleado& empleado, int lugar, Azar& azar) const
{
    empleado.mujer = azar.porCien(m_sabor.oficio == Oficio::Salon ? 80 : 62);
    empleado.nombre = (empleado.mujer ? azar.elige(nombresDeMujer()) : azar.elige(nombresDeHombre())).toString();
    const QString primero = azar.elige(apellidos()).toString();
    const QString segundo = azar.elige(apellidos()).toString();
    const bool soloNombre = empleado.tienda == 0 && lugar == SinApellidos; // the card was begun and not finished
    if (!soloNombre)
        empleado.apellidos = juntos(primero, segundo);
    empleado.enElTicket = soloNombre ? empleado.nombre : juntos(empleado.nombre, primero);
}

Turnantes Plantilla::deTurno(int tienda, Fecha fecha) const
{
    Turnantes turno;
    const auto& suyos = m_porTienda[static_cast<std::size_t>(tienda)];
    for (const int lugar : suyos) {
        const Empleado& empleado = m_empleados[static_cast<std::size_t>(lugar)];
        if (empleado.trabaja(fecha) && empleado.libra != diaSemana(fecha))
            turno.push_back(&empleado);
    }
    if (turno.empty())
        turno.push_back(&m_empleados[static_cast<std::size_t>(suyos[Encargado])]);
    return turno;
}

void Plantilla::amanece(int tienda)
{
    for (const int lugar : m_porTienda[static_cast<std::size_t>(tienda)])
        m_empleados[static_cast<std::size_t>(lugar)].minutos = 0;
}

const Empleado& Plantilla::atiende(const Turnantes& turno, int seccion, int minutos, int gusto, Azar& azar)
{
    const auto sabe = [seccion](const Empleado* uno) { return uno->categoria->atiende(seccion); };
    Turnantes expertos;
    std::ranges::copy_if(turno, std::back_inserter(expertos), sabe);
    const Turnantes& posibles = expertos.empty() ? turno : expertos;
    const Empleado* suyo = gusto < 0 ? nullptr : habitual(turno, gusto, seccion);
    if (suyo == nullptr || suyo->minutos + minutos > JornadaEntera) {
        const Empleado* uno = azar.elige(posibles);
        const Empleado* otro = azar.elige(posibles);
        suyo = uno->minutos < otro->minutos ? uno : otro;
    }
    if (suyo->minutos + minutos > JornadaEntera)
        suyo = *std::ranges::min_element(posibles, {}, &Empleado::minutos);
    m_empleados[static_cast<std::size_t>(suyo - m_empleados.data())].minutos += minutos;
    return *suyo;
}

const Empleado* Plantilla::habitual(const Turnantes& turno, int gusto, std::optional<int> seccion) const
{
    Turnantes suyos;
    for (const int lugar : m_porTienda[static_cast<std::size_t>(turno.front()->tienda)]) {
        const Empleado& uno = m_empleados[static_cast<std::size_t>(lugar)];
        if (!seccion || uno.categoria->atiende(*seccion))
            suyos.push_back(&uno);
    }
    if (suyos.empty())
        return nullptr;
    const Empleado* buscado = suyos[static_cast<std::size_t>(gusto) % suyos.size()];
    return std::ranges::find(turno, buscado) == turno.end() ? nullptr : buscado;
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
    const ColorPropio& color = colores[static_cast<std::size_t>(empleado.codigo) % std::size(colores)];
    const bool mostrar = !empleado.despedido() && empleado.codigo % 9 != 0;
    const DatosCategoria& categoria = *empleado.categoria;
    const int edad = azar.entre(18, 50); // when hired
    const Fecha nacimiento = empleado.alta.masDias(-edad * DiasDelAnio - azar.entre(20, 340));
    destino.fila(tablas::Empleados,
                 {{empleado.codigo,
                   empleado.nombre,
                   empleado.apellidos.isNull() ? Valor{} : Valor{empleado.apellidos},
                   empleado.despedido(),
                   mostrar,
                   empleado.codigo * 37 % 101,
                   empleado.codigo % 3 == 0 ? Valor{} : Valor{u"empleado"_s + QString::number(empleado.codigo % 6 + 1) + u".png"_s},
                   oNulo(color.marca),
                   oNulo(color.color),
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
                   empleado.mujer ? categoria.mujer : categoria.hombre,
                   azar.elige(observaciones)}});
}

} // namespace kestrane::demo
