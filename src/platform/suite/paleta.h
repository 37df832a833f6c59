#pragma once

#include "platform/suite/color_decimal.h"

#include <array>

namespace kestrane {

/// The colours of one theme. Every text is readable on every back that it is used on: tests/platform/suite/paleta_test.cpp has the
/// pairs.
struct Paleta
{
    Rgb fondo;        ///< of large windows
    Rgb fondoPequeno; ///< of small windows
    Rgb tarjeta;      ///< of groups and panels
    Rgb campo;        ///< of what is typed into, lists and tables
    Rgb filaAlterna;  ///< of every second row of a table
    Rgb texto;
    Rgb textoSuave; ///< notes and place-holders
    Rgb borde;      ///< where it tells what a control is: fields, boxes, options
    Rgb bordeSuave; ///< where it only adorns: cards, buttons
    Rgb boton;
    Rgb textoBoton;
    Rgb acento;      ///< the button that Enter presses, marks, bars
    Rgb textoAcento; ///< on `acento`
    Rgb seleccion;
    Rgb textoSeleccion;
    Rgb resalte;                ///< behind what is marked, under `texto`
    Rgb foco;                   ///< the ring around the control that has the keyboard
    Rgb aviso;                  ///< warnings, as text
    Rgb listados;               ///< the button cmdListados, under `textoBoton`
    std::array<Rgb, 4> paneles; ///< tiles of employees and sections in turn, under `texto`
};

/// Each channel of `color`, taken so many percent of the way to `otro`.
[[nodiscard]] constexpr Rgb mezclado(Rgb color, Rgb otro, int porCiento)
{
    Rgb mezcla = 0;
    for (int bits = 16; bits >= 0; bits -= 8) {
        const auto desde = static_cast<int>(color >> bits & 0xff);
        const auto hasta = static_cast<int>(otro >> bits & 0xff);
        mezcla = mezcla << 8 | static_cast<Rgb>(desde + (hasta - desde) * porCiento / 100);
    }
    return mezcla;
}

/// How far a button goes towards the colour of its text below the pointer, and pressed.
inline constexpr int PorCientoEncima = 7;
inline constexpr int PorCientoPulsado = 16;

/// The colours of the theme with that number; those of the first theme for a number that is none.
[[nodiscard]] const Paleta& paletaDe(qint32 tema);

} // namespace kestrane
