#include "instalacion/demo/maestros.h"
#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView NombreTerminal = u"Caja 1";
constexpr int EmpleadoRestringido = 2;
constexpr QLatin1StringView InstanciaListados{"1"}; // second half of the key of a running copy

struct Impresora
{
    QStringView tipo;
    QStringView nombre;
    QStringView fuente; // empty: none given
};

/// A row of the queue by which the other programs of the suite ask for a section of the menu.
struct Encargo
{
    QStringView para; // "": this terminal
    QStringView uso;
    int indice;
    QStringView codigo;
};

constexpr Encargo encargos[] = {{u"otro-terminal1", u"Listado", 1, u"LstStk"},
                                {u"", u"Listado", 20, u"LstCom"},
                                {u"", u"Listado", 10, u"lstgen"},
                                {u"", u"Agenda", 5, u"LstGen"},
                                {u"", u"Listado", 30, u"LstNoExiste"},
                                {u"", u"Listado", 40, u"LstBon"}};

constexpr std::array impresoras{Impresora{u"T", u"Tickets", u"DejaVu Sans Mono"}, Impresora{u"L", u"Oficina", u""},
                                Impresora{u"E", u"Etiquetas", u"DejaVu Sans"}};

/// What a shop chose for itself, so that each choice is some shop's.
struct Ajustes
{
    TipoTienda tipo;
    QStringView variosDias;           // empty: the row is missing
    bool facturas;                    // the module of invoices
    bool conImpuesto;                 // prices include the tax
    QStringView letra;                // of a shop of several stores
    std::optional<QStringView> deUna; // of a shop that is alone
    QStringView nombreSola;           // which then means nothing
};

constexpr Ajustes ajustes[] = {
    {TipoTienda::Peluqueria, u"SI", true, true, u"S", {}, u""},
    {TipoTienda::Spa, u"SI", true, true, u"T", {}, u""},
    {TipoTienda::Estetica, u"", true, true, u"S", u"", u""},
    {TipoTienda::Clinicas, u"SI", true, false, u"S", {}, u""},
    {TipoTienda::Tpv, u"SI", true, true, u"T", u"", u""},
    {TipoTienda::Perfumeria, u"", true, true, u"S", {}, u""},
    {TipoTienda::TallaColor, u"SI", true, false, u"T", {}, u""},
    {TipoTienda::Zapateria, u"SI", true, true, u"S", {}, u""},
    {TipoTienda::Supermercado, u"NO", false, true, u"S", {}, u""},
    {TipoTienda::Panaderia, u"si", false, true, u"T", u"N", u"Obrador"},
};

static_assert(std::size(ajustes) == TodosLosTipos.size());

const Ajustes& ajustesDe(const Negocio& negocio)
{
    return *std::ranges::find(ajustes, negocio.sabor.tipo, &Ajustes::tipo);
}

struct Permiso
{
    int empleado;
    QStringView control;
    bool permitido;
};

/// The employee of the terminal may do everything; others lack a few lists.
constexpr Permiso permisos[] = {{1, u"cmd_Caja1", true},          {2, u"cmd_Generales3", false}, {2, u"cmd_Ventas7", false},
                                {5, u"cmd_Estadisticas5", false}, {5, u"cmd_Caja3", false},      {5, u"cmd_Generales11", false}};

void escribeEmpresa(const Negocio& negocio, Azar& azar)
{
    const Poblacion& sede = poblaciones().front();
    const bool varias = negocio.tiendas.size() > 1;
    const Ajustes& suyos = ajustesDe(negocio);
    const QString propia = negocio.parametros.tiendaDelTerminal;
    const Valor letra = varias ? Valor{suyos.letra} : suyos.deUna ? Valor{*suyos.deUna} : Valor{};
    const Valor nombre = varias                       ? Valor{propia.isEmpty() ? u"Servidor"_s : propia}
                         : suyos.nombreSola.isEmpty() ? Valor{}
                                                      : Valor{suyos.nombreSola};
    negocio.destino.fila(tablas::Opciones, {{negocio.sabor.empresa, direccion(azar), sede.nombre, sede.provincia, sede.cp,
                                             cif(azar), telefonoFijo(sede.prefijo, azar), u"Euro"_s, u"€"_s, qint16{2},
                                             negocio.sabor.tipoPrograma, true, letra, nombre, suyos.facturas, suyos.conImpuesto}});
    negocio.destino.fila(tablas::Configuracionregional, {{u"España"_s, u"banderas/espana.png"_s, u"N.I.F."_s}});
    negocio.destino.fila(tablas::Migraciontablas, {{u"Ventas"_s, true, negocio.calendario.dias().front().fecha}});
    negocio.destino.fila(tablas::Migraciontablas, {{u"Agenda"_s, false, Nulo{}}});
}

void escribeTerminal(const Negocio& negocio)
{
    const QString& equipo = negocio.parametros.terminal;
    negocio.destino.fila(tablas::OpcionesTerminal, {{equipo, NombreTerminal, 1}});
    negocio.destino.fila(tablas::OpcionesTerminal, {{equipo + u"-caja2"_s, u"Caja 2"_s, EmpleadoRestringido}});
    for (const Impresora& una : impresoras)
        negocio.destino.fila(tablas::Impresoras, {{una.tipo, NombreTerminal, una.nombre,
                                                   una.fuente.isEmpty() ? Valor{} : Valor{una.fuente}, qint16{35}}});
    negocio.destino.fila(tablas::PreferenciasTerminal, {{equipo, 1, 10, 15360.0, 11085.0}});
    if (const QStringView varios = ajustesDe(negocio).variosDias; !varios.isEmpty())
        negocio.destino.fila(tablas::RelacionesFijas, {{u"PermiteListadoVariosDias"_s, varios, Nulo{}}});
    negocio.destino.fila(tablas::RelacionesFijas, {{u"TarifaAplicada"_s, equipo + InstanciaListados, 1}});
    negocio.destino.fila(tablas::RelacionesFijas, {{u"TarifaAplicada"_s, u"otro-terminal1"_s, 2}});
    negocio.destino.fila(tablas::Listadostemporal, {{QString{InstanciaListados}}});
    for (const Encargo& uno : encargos)
        negocio.destino.fila(
            tablas::Pasardatos,
            {{uno.para.isEmpty() ? Valor{QString{equipo + InstanciaListados}} : Valor{uno.para}, uno.uso, uno.indice, uno.codigo}});
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
