#pragma once

#include "run_context/contexto_ejecucion.h"

#include <span>

namespace kestrane {

/// A button by which a listing is put in order.
struct Orden
{
    QStringView control;
    QStringView leyenda;
    QStringView columna;
    bool soloConEmail = false; ///< and only clients with an e-mail address
};

/// The buttons of FrmOrdenClientes, frmOrdenServicios and the second page of frmFiltrosProductos, as they stand there.
[[nodiscard]] std::span<const Orden> ordenesDeClientes();
[[nodiscard]] std::span<const Orden> ordenesDeServicios();
[[nodiscard]] std::span<const Orden> ordenesDeProductos();

/// A press on such a button: the order is set and the dialog accepted.
void eligeOrden(ContextoEjecucion& contexto, const Orden& orden);

} // namespace kestrane
