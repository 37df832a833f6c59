#include "instalacion/demo/maestros.h"
#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <array>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView NombreTerminal = u"Caja 1";
constexpr QLatin1StringView InstanciaListados{"1"}; // second half of the key of a running copy

struct Impresora
{
    QStringView tipo;
    QStringView nombre;
    QStringView fuente; // empty: none given
};

constexpr std::array impresoras{Impresora{u"T", u"Tickets", u"DejaVu Sans Mono"}, Impresora{u"L", u"Oficina", u""},
                                Impresora{u"E", u"Etiquetas", u"DejaVu Sans"}};

struct Permiso
{
    int empleado;
    QStringView control;
    bool permitido;
};

/// The employee of the terminal may do everything; others lack a few lists.
constexpr Permiso permisos[] = {{1, u"cmd_Caja1", true},          {2, u"cmd_Generales3", false}, {2, u"cmd_Ventas7", false},
                                {4, u"cmd_Estadisticas5", false}, {4, u"cmd_Caja3", false},      {4, u"cmd_Generales11", false}};

void escribeEmpresa(const Negocio& negocio, Azar& azar)
{
    const Poblacion& sede = poblaciones().front();
    const bool varias = negocio.tiendas.size() > 1;
    negocio.destino.fila(tablas::Opciones,
                         {{negocio.sabor.empresa, direccion(azar), sede.nombre, sede.provincia, sede.cp, cif(azar),
                           telefonoFijo(sede.prefijo, azar), u"Euro"_s, u"€"_s, qint16{2}, negocio.sabor.tipoPrograma, true,
                           varias ? Valor{u"S"_s} : Valor{}, varias ? Valor{u"Servidor"_s} : Valor{}, true, true}});
    negocio.destino.fila(tablas::Configuracionregional, {{u"España"_s, u"banderas/espana.png"_s, u"N.I.F."_s}});
    negocio.destino.fila(tablas::Migraciontablas, {{u"Ventas"_s, true, negocio.calendario.dias().front().fecha}});
    negocio.destino.fila(tablas::Migraciontablas, {{u"Agenda"_s, false, Nulo{}}});
}

void escribeTerminal(const Negocio& negocio)
{
    const QString& equipo = negocio.parametros.terminal;
    negocio.destino.fila(tablas::OpcionesTerminal, {{equipo, NombreTerminal, 1}});
    for (const Impresora& una : impresoras)
        negocio.destino.fila(tablas::Impresoras, {{una.tipo, NombreTerminal, una.nombre,
                                                   una.fuente.isEmpty() ? Valor{} : Valor{una.fuente}, qint16{35}}});
    negocio.destino.fila(tablas::PreferenciasTerminal, {{equipo, 1, 10, 15360.0, 11085.0}});
    negocio.destino.fila(tablas::RelacionesFijas, {{u"PermiteListadoVariosDias"_s, u"SI"_s, Nulo{}}});
    negocio.destino.fila(tablas::RelacionesFijas, {{u"TarifaAplicada"_s, equipo + InstanciaListados, 1}});
    negocio.destino.fila(tablas::RelacionesFijas, {{u"TarifaAplicada"_s, u"otro-terminal1"_s, 2}});
    negocio.destino.fila(tablas::Listadostemporal, {{QString{InstanciaListados}}});
    for (const Permiso& permiso : permisos)
        negocio.destino.fila(tablas::PermisosListados, {{permiso.empleado, permiso.control, permiso.permitido}});
}

} // namespace

void escribeOpciones(const Negocio& negocio, Azar azar)
{
    escribeEmpresa(negocio, azar);
    escribeTerminal(negocio);
    if (negocio.tiendas.size() < 2)
        return;
    negocio.destino.fila(tablas::Multitienda, {{u"Servidor"_s}});
    for (const Tienda& tienda : negocio.tiendas)
        negocio.destino.fila(tablas::Multitienda, {{tienda.nombre}});
}

} // namespace kestrane::demo
