#include "platform/report/preview/impresion_del_sistema.h"

#include "platform/printing/impresion.h"
#include "platform/printing/impresora.h"

namespace kestrane::report {

QStringList ImpresionDelSistema::impresoras() const
{
    QStringList nombres;
    for (const printing::Impresora& impresora : printing::impresoras())
        nombres += impresora.nombre;
    return nombres;
}

QString ImpresionDelSistema::predeterminada() const
{
    return printing::impresoraPredeterminada();
}

int ImpresionDelSistema::imprime(FuenteVista& fuente, const PeticionImpresion& peticion, const AvanceExportacion& avance)
{
    const printing::PeticionImpresion orden{
        .impresora = peticion.impresora, .desde = peticion.desde, .hasta = peticion.hasta, .copias = peticion.copias};
    return fuente.documento() ? printing::imprime(*fuente.documento(), orden, avance) : 0;
}

} // namespace kestrane::report
