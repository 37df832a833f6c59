#pragma once

#include "pipeline/pantalla.h"
#include "platform/runtime/soporte.h"

namespace kestrane::prueba {

/// What the program calls a dialog.
inline QString nombre(Dialogo dialogo)
{
    switch (dialogo) {
    case Dialogo::Fechas:
        return QStringLiteral("frmFechas");
    case Dialogo::FechasConFormatos:
        return QStringLiteral("frmFechas+");
    case Dialogo::Buscar:
        return QStringLiteral("frmBuscar");
    case Dialogo::HistoricoXClientes:
        return QStringLiteral("frmHistoricoXClientes");
    case Dialogo::HistoricoXEmpleados:
        return QStringLiteral("frmHistoricoXEmpleados");
    case Dialogo::FiltrosProductos:
        return QStringLiteral("frmFiltrosProductos");
    case Dialogo::ProductosVendidos:
        return QStringLiteral("frmProductosVendidos");
    case Dialogo::OrdenClientes:
        return QStringLiteral("FrmOrdenClientes");
    case Dialogo::OrdenServicios:
        return QStringLiteral("frmOrdenServicios");
    case Dialogo::ClientesPerdidos:
        return QStringLiteral("frClientesPerdidos");
    case Dialogo::Meses:
        return QStringLiteral("frmMeses");
    case Dialogo::SelTienda:
        return QStringLiteral("frmSelTienda");
    case Dialogo::ReImprimir:
        return QStringLiteral("frmReImprimir");
    case Dialogo::EtiquetasClientes:
        return QStringLiteral("frAviso");
    }
    return QStringLiteral("?");
}

/// What a button opens that is no report.
inline QString nombre(AccionMenu accion)
{
    switch (accion) {
    case AccionMenu::Carteles:
        return QStringLiteral("frmSeleccionCartel");
    case AccionMenu::EtiquetasDeProductos:
        return QStringLiteral("frmSeleccionEtiquetas");
    case AccionMenu::EtiquetasDeProductosTPV:
        return QStringLiteral("frmSeleccionEtiquetasTPV");
    case AccionMenu::EtiquetasDeClientes:
        return QStringLiteral("frAviso");
    case AccionMenu::Ayuda:
        return QStringLiteral("ayuda");
    case AccionMenu::Salir:
        return QStringLiteral("salir");
    }
    return QStringLiteral("?");
}

} // namespace kestrane::prueba
