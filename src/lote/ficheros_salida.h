#pragma once

#include "lote/salida_de_lote.h"

#include <span>

/// Where the reports of a run end up. No file holds half a report.
namespace kestrane::lote {

/// All reports as one document. PeticionImposible for several where the format does not join them, ErrorDeSalida.
void escribeEn(QIODevice& salida, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes);

/// One report as the file `nombre`; several as one file each, with the store's name in front of the ending, and the number of
/// its page where a file holds one page of several. Files take their names
/// one after the other when all are written: should the system refuse one of them then, those before it are there already. A pipe
/// or a device takes all reports as one document and stays what it is. ErrorDeSalida.
void escribeFicheros(const QString& nombre, const EscritorInformes& escritor, std::span<const CuerpoInforme> informes);

/// ErrorDeSalida when the folder of `nombre` does not take the file; nothing is left there. A pipe or a device is not opened.
void compruebaQueSePuedeEscribir(const QString& nombre);

} // namespace kestrane::lote
