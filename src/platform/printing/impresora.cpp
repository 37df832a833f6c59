#include "platform/printing/impresora.h"

#include <QPrinterInfo>

namespace kestrane::printing {

std::vector<Impresora> impresoras()
{
    std::vector<Impresora> todas;
    for (const QString& nombre : QPrinterInfo::availablePrinterNames()) {
        const QPrinterInfo datos = QPrinterInfo::printerInfo(nombre);
        todas.push_back({.nombre = nombre, .controlador = datos.makeAndModel(), .puerto = datos.location()});
    }
    return todas;
}

bool existeImpresora(const QString& nombre)
{
    return !nombre.isEmpty() && QPrinterInfo::availablePrinterNames().contains(nombre);
}

QString impresoraPredeterminada()
{
    return QPrinterInfo::defaultPrinterName();
}

} // namespace kestrane::printing
