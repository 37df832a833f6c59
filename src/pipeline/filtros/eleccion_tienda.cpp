#include "pipeline/filtros/eleccion_tienda.h"

namespace kestrane {

using namespace Qt::StringLiterals;

void pulsaTienda(ContextoEjecucion& contexto, const QString& texto)
{
    contexto.TiendaSeleccionada = texto.toUpper() == u"TODAS" ? QString{} : texto;
}

} // namespace kestrane
