#pragma once

#include "dialogs/eleccion_de_tienda.h"
#include "dialogs/forma_filtro.h"
#include "platform/controls/calendario.h"

namespace kestrane {

/// frClientesPerdidos: the day since which a client has not come, and on the server a store.
class FrClientesPerdidos final : public FormaFiltro
{
    Q_OBJECT

public:
    explicit FrClientesPerdidos(const ServiciosDialogo& servicios);

    void carga();

private:
    QFrame* m_marco;
    Calendario* m_desde;
    EleccionDeTienda* m_tienda;
};

} // namespace kestrane
