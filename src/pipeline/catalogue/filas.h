#pragma once

#include "pipeline/catalogue/condiciones.h"
#include "pipeline/catalogue/fila_catalogo.h"

#include <algorithm>

/// The words in which the table of the catalogue is written.
namespace kestrane::catalogue {

constexpr CadenaDialogos dialogo(Dialogo unico)
{
    return {.dialogos = {unico}, .cuantos = 1};
}

constexpr CadenaDialogos dosDialogos(Dialogo primero, Dialogo segundo, bool (*trasElPrimero)(ContextoEjecucion&) = nullptr)
{
    return {.dialogos = {primero, segundo}, .cuantos = 2, .trasElPrimero = trasElPrimero};
}

/// One builder, which takes nothing but the run context.
constexpr Constructores de(QStringView nombre, Constructor constructor = nullptr)
{
    return {{{nombre, constructor}}};
}

/// One builder that serves several buttons, with the number of this one.
template<qint16 Numero>
constexpr Constructores con(QStringView nombre)
{
    return {{{.nombre = nombre, .numero = Numero}}};
}
template<qint16 Numero, ConstructorConNumero Funcion>
constexpr Constructores con(QStringView nombre)
{
    return {{{.nombre = nombre, .constructor = [](Listados& listados) { Funcion(listados, Numero); }, .numero = Numero}}};
}

/// One layout, on the printer of the sheets.
constexpr Disenos en(QStringView fichero)
{
    return {{{fichero}}};
}

constexpr Disenos porComercio(QStringView comercio, QStringView base)
{
    return {{{comercio, ImpresoraDe::Listados, esComercio}, {base}}};
}

constexpr Disenos porTicket(QStringView ticket, QStringView folio)
{
    return {{{ticket, ImpresoraDe::Ticket, enTicket}, {folio}}};
}

constexpr FilaCatalogo informe(QStringView control, QStringView leyenda, const CadenaDialogos& dialogos,
                               const Constructores& constructores, const Disenos& disenos, Marcas marcas = {})
{
    FilaCatalogo fila{.clase = Clase::Informe, .control = control, .leyenda = leyenda};
    fila.dialogos = dialogos;
    fila.constructores = constructores;
    fila.disenos = disenos;
    fila.marcas = marcas;
    return fila;
}

/// The row with what its button sets before the dialogs.
constexpr FilaCatalogo tras(void (*preparacion)(ContextoEjecucion&), FilaCatalogo fila)
{
    fila.preparacion = preparacion;
    return fila;
}

/// The row with a text of its own for frmFechas.
constexpr FilaCatalogo titulado(QStringView titulo, FilaCatalogo fila)
{
    fila.titulo = titulo;
    return fila;
}

/// The row that gives frmFechas the caption of another button.
constexpr FilaCatalogo conTituloDe(QStringView control, FilaCatalogo fila)
{
    fila.tituloDe = control;
    return fila;
}

constexpr FilaCatalogo grafico(QStringView control, QStringView leyenda, const CadenaDialogos& dialogos,
                               const OpcionGrafico& elSuyo, Marcas marcas)
{
    FilaCatalogo fila{.clase = Clase::Grafico, .control = control, .leyenda = leyenda};
    fila.dialogos = dialogos;
    fila.grafico = elSuyo;
    fila.marcas = marcas;
    return fila;
}

constexpr FilaCatalogo accion(QStringView control, QStringView leyenda, const Acciones& acciones)
{
    FilaCatalogo fila{.clase = Clase::Accion, .control = control, .leyenda = leyenda};
    fila.acciones = acciones;
    return fila;
}

constexpr FilaCatalogo sinAccion(QStringView control, QStringView leyenda)
{
    return {.clase = Clase::SinAccion, .control = control, .leyenda = leyenda};
}

constexpr Acciones hace(AccionMenu accion)
{
    return {{{accion, nullptr, true}}};
}

/// The rows as buttons of `grupo`.
template<size_t N>
constexpr std::array<FilaCatalogo, N> enGrupo(Grupo grupo, std::array<FilaCatalogo, N> filas)
{
    for (FilaCatalogo& fila : filas)
        fila.grupo = grupo;
    return filas;
}

/// All rows of several groups, one group behind the other.
template<size_t... N>
constexpr std::array<FilaCatalogo, (N + ...)> juntas(const std::array<FilaCatalogo, N>&... grupos)
{
    std::array<FilaCatalogo, (N + ...)> todas{};
    auto* fin = todas.data();
    ((fin = std::copy(grupos.begin(), grupos.end(), fin)), ...);
    return todas;
}

} // namespace kestrane::catalogue
