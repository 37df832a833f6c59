#pragma once

#include "platform/report/documento.h"

#include <functional>

namespace kestrane::report {

enum class FormatoExportacion { Pdf, Xlsx, Csv, Html, Png };

/// Told now and then how far the work is (0 to 1); false breaks it off and leaves no file.
using AvanceExportacion = std::function<bool(double)>;

/// Writes the whole report to `fichero` beside it and gives it its name when all of it is on the disk. PNG writes one file a page,
/// "NAME_001.png" and on when there are several. A link stays and leads to the new file. False when it was broken off.
/// ErrorDeSalida when it cannot be written, also because no file lies there but a folder, a pipe or a device; no half file is left.
bool exporta(Documento& documento, FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance = {});

} // namespace kestrane::report
