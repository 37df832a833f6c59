#include "pipeline/filtros/eleccion_tienda.h"

namespace kestrane {

using namespace Qt::StringLiterals;

bool ofreceTiendas(const ContextoEjecucion& contexto)
{
    return contexto.NombreTienda == u"Servidor" && contexto.MultiTienda;
}

void pulsaTienda(ContextoEjecucion& contexto, const QString& texto)
{
    contexto.TiendaSeleccionada = texto.toUpper() == u"TODAS" ? QString{} : texto;
}

} // namespace kestrane
