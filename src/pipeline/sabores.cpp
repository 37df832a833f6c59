#include "pipeline/sabores.h"

namespace kestrane {

bool esDeTallaYColor(QStringView tipoPrograma)
{
    return tipoPrograma == u"TALLACOLOR" || tipoPrograma == u"ZAPATERIA";
}

bool esDeAlimentacionYPerfume(QStringView tipoPrograma)
{
    return tipoPrograma == u"PERFUMERIA" || tipoPrograma == u"TPV" || tipoPrograma == u"SUPERMERCADO" ||
           tipoPrograma == u"PANADERIA";
}

bool esComercio(QStringView tipoPrograma)
{
    return esDeTallaYColor(tipoPrograma) || esDeAlimentacionYPerfume(tipoPrograma);
}

} // namespace kestrane
