#pragma once

#include "pipeline/listados.h"

#include <QFlags>

#include <array>

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

/// The dialogs of a row, shown one behind the other. `trasElPrimero` may end the report between the two.
struct CadenaDialogos
{
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
    CadenaDialogos dialogos{};
    Constructores constructores{};
    Disenos disenos{};
    Marcas marcas{};
    void (*preparacion)(ContextoEjecucion&) = nullptr; ///< what the button sets before its dialogs
    QStringView titulo{};                              ///< for frmFechas, the caption when empty
    QStringView grafico{};                             ///< name of the chart
    Acciones acciones{};
};

} // namespace kestrane::catalogue
