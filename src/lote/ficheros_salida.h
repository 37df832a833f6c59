#pragma once

#include "lote/salida_de_lote.h"

#include <span>

/// Where the reports of a run end up. All or nothing: no destination holds half a report.
namespace kestrane::lote {

/// All reports as one document. ErrorDeSalida.
void escribeEn(QIODevice& salida, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes);

/// One report as the file `nombre`; several as one file each, with the store's name in front of the ending. Files appear under
/// their names when all are written. ErrorDeSalida.
void escribeFicheros(const QString& nombre, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes);

/// ErrorDeSalida when the folder of `nombre` does not take the file; nothing is left there.
void compruebaQueSePuedeEscribir(const QString& nombre);

} // namespace kestrane::lote
