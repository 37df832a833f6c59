#pragma once

#include "dialogs/eleccion_de_tienda.h"
#include "dialogs/forma_filtro.h"

namespace kestrane {

/// frmSelTienda: on the server, the store that a report is limited to. A press on one closes it; there is nothing to accept and
/// nothing to leave by, and closed in any other way the store stays as it was.
class FrmSelTienda final : public FormaFiltro
{
    Q_OBJECT

public:
    explicit FrmSelTienda(const ServiciosDialogo& servicios);

    void carga();

protected:
    void sale() override {}

private:
    QFrame* m_marco;
    EleccionDeTienda* m_tienda;
};

} // namespace kestrane
