#pragma once

#include "platform/report/layout/expresion.h"

#include <QString>

#include <vector>

namespace kestrane::report {

enum class ClaseSimbolo { Numero, Texto, Nombre, Signo, Fin };

struct Simbolo
{
    ClaseSimbolo clase = ClaseSimbolo::Fin;
    QString texto; ///< of a text what it says, of a name and a sign what is written
    double numero = 0;
    qsizetype posicion = 0;
};

/// Throws ErrorEjecucion LayoutIncorrecto that quotes the expression and names the character, counted from 1.
[[noreturn]] void fallaExpresion(const LugarLayout& lugar, QStringView expresion, qsizetype posicion, const QString& que);

/// The symbols of an expression, the last one Fin. Errors as above: a character that begins nothing, a text without its end.
[[nodiscard]] std::vector<Simbolo> simbolosDe(QStringView expresion, const LugarLayout& lugar);

} // namespace kestrane::report
