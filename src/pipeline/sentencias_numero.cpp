#include "pipeline/sentencias_numero.h"

#include <QStringBuilder>

namespace kestrane {

void ejecutaConNumero(Listados& listados, QStringView principio, double numero, QStringView final)
{
    listados.contexto.ConexionListados.Execute(principio % numeroParaSql(numero, listados.regional()) % final);
}

void escribeResumen(Listados& listados, std::span<const LineaResumen> lineas)
{
    for (const LineaResumen& linea : lineas) {
        if (linea.importe > 0)
            ejecutaConNumero(listados, linea.principio, linea.importe, linea.final);
    }
}

} // namespace kestrane
