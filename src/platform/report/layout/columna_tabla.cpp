#include "platform/report/layout/columna_tabla.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lectura_atributos.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr double Aire = 1;        ///< millimetres on each side of a cell
constexpr double AnchoMinimo = 3; ///< of a column that takes what is left
constexpr double Holgura = 0.05;

bool esEstrella(const ElementoXml& columna)
{
    return textoDe(columna, u"ancho", u"*"_s) == u"*";
}

bool esCantidad(Formato formato)
{
    return formato == Formato::Entero || formato == Formato::Numero || formato == Formato::Moneda || formato == Formato::Porcentaje;
}

/// How wide each column without a width is.
double anchoRepartido(const ElementoXml& tabla, double ancho)
{
    double fijo = 0;
    int estrellas = 0;
    for (const ElementoXml& columna : tabla.hijos) {
        fijo += medidaDe(columna, u"ancho", 0);
        estrellas += esEstrella(columna) ? 1 : 0;
    }
    if (fijo + estrellas * AnchoMinimo > ancho + Holgura)
        fallaLayout(tabla.lugar, u"las columnas de la tabla miden %1 mm más las de ancho «*», y caben %2."_s.arg(fijo).arg(ancho));
    return estrellas == 0 ? 0 : (ancho - fijo) / estrellas;
}

} // namespace

Horizontal ColumnaTabla::alineacion(const Estilo& estilo) const
{
    return horizontalDe(*xml, u"alinea", esCantidad(formato.formato) ? Horizontal::Derecha : estilo.horizontal);
}

Estilo ColumnaTabla::alineado(Estilo estilo) const
{
    estilo.horizontal = alineacion(estilo);
    return estilo;
}

QRectF ColumnaTabla::caja(double alto) const
{
    const double aire = std::min(Aire, ancho / 8);
    return {x + aire, 0, ancho - 2 * aire, alto};
}

std::vector<ColumnaTabla> columnasDe(const ElementoXml& tabla, double ancho)
{
    if (tabla.hijos.empty())
        fallaLayout(tabla.lugar, u"<"_s + tabla.nombre + u"> no tiene ninguna columna."_s);
    const double repartido = anchoRepartido(tabla, ancho);
    std::vector<ColumnaTabla> columnas;
    double x = 0;
    for (const ElementoXml& xml : tabla.hijos) {
        const double mide = medidaDe(xml, u"ancho", repartido);
        columnas.push_back({&xml, x, mide, formatoDe(xml)});
        x += mide;
    }
    return columnas;
}

} // namespace kestrane::report
