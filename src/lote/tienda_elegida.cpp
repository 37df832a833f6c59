#include "lote/tienda_elegida.h"

#include "lote/peticion_imposible.h"

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

const QString* tiendaLlamada(const ContextoEjecucion& contexto, const QString& tienda, Qt::CaseSensitivity mayusculas)
{
    const int ultima = contexto.Tiendas.reservado() ? contexto.Tiendas.limiteSuperior() - 1 : 0;
    for (int indice = 1; indice <= ultima; ++indice) {
        if (contexto.Tiendas[indice].Texto.compare(tienda, mayusculas) == 0)
            return &contexto.Tiendas[indice].Texto;
    }
    return nullptr;
}

} // namespace

void eligeTienda(ContextoEjecucion& contexto, const QString& tienda)
{
    if (tienda.isEmpty() || tienda.compare(u"Todas"_s, Qt::CaseInsensitive) == 0) {
        contexto.TiendaSeleccionada.clear();
        return;
    }
    if (!enServidor(contexto)) {
        contexto.TiendaSeleccionada = tienda;
        return;
    }
    const QString* elegida = tiendaLlamada(contexto, tienda, Qt::CaseSensitive);
    if (!elegida)
        elegida = tiendaLlamada(contexto, tienda, Qt::CaseInsensitive);
    if (!elegida)
        throw PeticionImposible{u"El servidor no tiene ninguna tienda \"%1\"."_s.arg(tienda)};
    contexto.TiendaSeleccionada = *elegida;
}

} // namespace kestrane::lote
