#pragma once

#include "platform/runtime/fecha.h"

#include <QString>

namespace kestrane {

/// What the controls of the panel frAviso hold when client labels are asked for: each member bears its control's name. The builder
/// reads the texts: a threshold may be no number.
struct EtiquetasClientes
{
    bool OptGeneral = false;
    bool optTodos = false;
    bool OptCPostal = false;
    QString txtCPostal;
    bool optConsumo = false;
    QString txtConsumo;
    bool OptMayorConsumo = false; ///< else below the figure, as OptMenoConsumo says
    bool optCumple = false;
    Fecha desdeCumple;
    Fecha HastaCumple;
    bool optVisitas = false;
    QString txtValVisitas;
    bool OptMayorVisitas = false; ///< else below the number, as optMenoVisitas says

    friend bool operator==(const EtiquetasClientes&, const EtiquetasClientes&) = default;
};

} // namespace kestrane
