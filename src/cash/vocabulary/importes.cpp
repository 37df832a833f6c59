#include "cash/vocabulary/importes.h"

namespace kestrane {

Valor importes::suma(const Valor& a, const Valor& b)
{
    return a.esNulo() || b.esNulo() ? Valor{} : Valor{a.doble() + b.doble()};
}

Valor importes::resta(const Valor& a, const Valor& b)
{
    return a.esNulo() || b.esNulo() ? Valor{} : Valor{a.doble() - b.doble()};
}

Valor importes::opuesto(const Valor& a)
{
    return a.esNulo() ? Valor{} : Valor{0.0 - a.doble()};
}

Valor impuestosDeLinea(Recordset& linea)
{
    return importes::suma(linea.Fields(u"impuesto"), linea.Fields(u"impuesto_2"));
}

Valor netoDeLinea(Recordset& linea)
{
    return importes::resta(linea.Fields(u"precio"), impuestosDeLinea(linea));
}

Valor impuestosDeAbono(Recordset& linea)
{
    const Valor segundo = linea.Fields(u"impuesto_2");
    return importes::suma(linea.Fields(u"impuesto"), segundo.esNulo() ? Valor{0.0} : segundo);
}

} // namespace kestrane
