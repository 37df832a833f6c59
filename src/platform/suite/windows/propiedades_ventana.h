#pragma once

/// Dynamic properties by which a window tells the suite's objects what a control is. A window sets them while it is built.
namespace kestrane::propiedades {

/// A number: how large the letters of a title are against those of its window; 1 where it is not set.
inline constexpr char LetraRelativa[] = "letraRelativa";
/// A flag, on a window or on a control: buttons, fields and options are at least 44 points of the screen high, for fingers.
inline constexpr char Tactil[] = "tactil";
/// A flag on a QFrame: a card, as group boxes are.
inline constexpr char Tarjeta[] = "tarjeta";
/// A flag on a label: a note that steps back behind the other texts.
inline constexpr char TextoSuave[] = "textoSuave";
/// A flag on a label: a warning.
inline constexpr char TextoAviso[] = "textoAviso";
/// A flag on a window: a small one, with the back colour of DarColorFondo.
inline constexpr char VentanaPequena[] = "ventanaPequena";

} // namespace kestrane::propiedades
