#pragma once

#include "lote/opciones.h"
#include "platform/database/entorno_datos.h"
#include "platform/runtime/avisos.h"

#include <QIODevice>

namespace kestrane::lote {

/// Where a run writes, and what it has to know of the program around it.
struct EntornoDeLote
{
    QString carpetaPrograma;
    QIODevice& salida;
    Avisos& avisos;
};

/// Runs the report of `opciones` on the databases that `datos` leads to and writes it. Returns the exit status, 0 or 3 without
/// data, which the operator is told of each report. ErrorEjecucion, ErrorDeSalida and PeticionImposible when it cannot; but for an
/// output that breaks off nothing is written then.
[[nodiscard]] int ejecutaInforme(const Opciones& opciones, const database::OpcionesDatos& datos, const EntornoDeLote& entorno);

/// One line for each report and chart: control, group and caption, "informe" or "grafico", and what is not available yet.
[[nodiscard]] QByteArray listaDeInformes();

} // namespace kestrane::lote
