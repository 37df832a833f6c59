#pragma once

#include "pipeline/listados.h"

#include <QFlags>

#include <array>
#include <span>

/// One button of the menu as data. Where a report chooses (a layout by flavour, a builder by the dialog's answer) its row holds
/// all choices in order, each with the condition under which it counts: the first one that holds is taken.
namespace kestrane::catalogue {

using Condicion = bool (*)(const ContextoEjecucion&);

/// A choice without a condition always counts.
template<class Opcion>
[[nodiscard]] bool cuenta(const Opcion& opcion, const ContextoEjecucion& contexto)
{
    return opcion.presente() && (!opcion.cuando || opcion.cuando(contexto));
}

/// The choice that counts, or nullptr.
template<class Opciones>
[[nodiscard]] auto primera(const Opciones& opciones, const ContextoEjecucion& contexto) -> decltype(opciones.data())
{
    for (const auto& opcion : opciones) {
        if (cuenta(opcion, contexto))
            return &opcion;
    }
    return nullptr;
}

enum class ImpresoraDe { Listados, Ticket };

/// A layout file and the printer that it is meant for.
struct Diseno
{
    QStringView fichero;
    ImpresoraDe impresora = ImpresoraDe::Listados;
    Condicion cuando = nullptr;

    [[nodiscard]] constexpr bool presente() const { return !fichero.isEmpty(); }
};
using Disenos = std::array<Diseno, 4>;

/// A builder; `constructor` is null as long as there is none.
struct OpcionConstructor
{
    QStringView nombre;
    Constructor constructor = nullptr;
    Condicion cuando = nullptr;
    qint16 numero = 0; ///< what `constructor` hands to a builder that serves several buttons; 0 for one that takes no number

    [[nodiscard]] constexpr bool presente() const { return !nombre.isEmpty(); }
};
using Constructores = std::array<OpcionConstructor, 2>;

struct OpcionAccion
{
    AccionMenu accion = AccionMenu::Salir;
    Condicion cuando = nullptr;
    bool esta = false;

    [[nodiscard]] constexpr bool presente() const { return esta; }
};
using Acciones = std::array<OpcionAccion, 2>;

/// A chart; `recolector` is null as long as there is none.
struct OpcionGrafico
{
    QStringView nombre;
    Recolector recolector = nullptr;

    [[nodiscard]] constexpr bool presente() const { return !nombre.isEmpty(); }
};

/// The dialogs of a row, shown one behind the other. `trasElPrimero` may end the report between the two.
struct CadenaDialogos
{
    [[nodiscard]] std::span<const Dialogo> lista() const { return std::span{dialogos}.first(static_cast<size_t>(cuantos)); }

    std::array<Dialogo, 2> dialogos{};
    int cuantos = 0;
    bool (*trasElPrimero)(ContextoEjecucion&) = nullptr;
};

enum class Marca {
    Hoy = 1,               ///< without its dialog, for today alone, where several days are not allowed
    Select = 2,            ///< on the server the store is asked for first
    Bucle = 4,             ///< on the server with no store chosen once per store
    SinFiltroAceptado = 8, ///< built even when the dialog was left
    ConAviso = 16,         ///< shows that it may take minutes
};
Q_DECLARE_FLAGS(Marcas, Marca)
Q_DECLARE_OPERATORS_FOR_FLAGS(Marcas)

/// Where in the menu a button stands.
enum class Grupo {
    Ninguno, ///< outside all groups
    Frame1,  ///< "Caja"
    Frame3,  ///< "Listados Generales"
    Frame5,  ///< "Listados de Ventas"
    Frame6,  ///< "Estadisticas"
    Frame7,  ///< "Graficos de venta"
    Frame9,  ///< "Movimientos de Stock"
    Frame10, ///< "Agendas"
    Frame11, ///< "Bonos"
    fr_TallaColor,
    frAviso, ///< the panel of the client labels
};

enum class Clase {
    Informe,
    Grafico,
    Accion,    ///< opens a window of its own, or ends the program
    SinAccion, ///< stands in the form and does nothing
};

struct FilaCatalogo
{
    Clase clase = Clase::SinAccion;
    QStringView control; ///< name of the button
    QStringView leyenda; ///< its caption
    Grupo grupo = Grupo::Ninguno;
    CadenaDialogos dialogos{};
    Constructores constructores{};
    Disenos disenos{};
    Marcas marcas{};
    void (*preparacion)(ContextoEjecucion&) = nullptr; ///< what the button sets before its dialogs
    QStringView titulo{};                              ///< for frmFechas; when empty, the caption of a button
    QStringView tituloDe{};                            ///< that button, where it is another than the row's own
    OpcionGrafico grafico{};
    Acciones acciones{};
};

} // namespace kestrane::catalogue
