#pragma once

#include "cash/tienda_de_caja.h"
#include "cash/tienda_escuchada.h"

namespace kestrane::prueba {

/// A till's shop, listened to: flavour, period, store and options are those of `tienda` at that moment.
class CajaEscuchada : public Escucha
{
public:
    explicit CajaEscuchada(TiendaDeCaja& tienda) : Escucha{tienda.tienda}
    {
        ContextoEjecucion& contexto = puesto.contexto;
        contexto.TipoPrograma = tienda.contexto.TipoPrograma;
        contexto.FechaDesde = tienda.contexto.FechaDesde;
        contexto.FechaHasta = tienda.contexto.FechaHasta;
        contexto.TiendaSeleccionada = tienda.contexto.TiendaSeleccionada;
        contexto.MultiTienda = tienda.contexto.MultiTienda;
        contexto.CajaCompleta = tienda.contexto.CajaCompleta;
    }
};

} // namespace kestrane::prueba
