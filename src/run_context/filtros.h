#pragma once

#include "run_context/etiquetas_clientes.h"

#include <QString>

namespace kestrane {

/// What dialogs and menu leave for the builders beside the run context's own values.
///
/// Beside each member stands who writes it and, behind "reset:", the step that takes it back. A member that nothing resets keeps
/// its value from one report to the next. At the start of the run all are empty, 0 or false, but for the three that their dialog's
/// load sets to -1 (all).
struct Filtros
{
    QString cliente;                  ///< the menu: the client of the client history as its search gave it
    bool todasLasSecciones = false;   ///< frmHistoricoXClientes
    qint32 seccion = -1;              ///< frmHistoricoXClientes, frmFiltrosProductos; reset: load of both, to -1
    bool soloProductos = false;       ///< frmHistoricoXClientes
    bool soloServicios = false;       ///< frmHistoricoXClientes
    qint32 empleado = 0;              ///< frmHistoricoXEmpleados, frmProductosVendidos; -1 is all
    bool totalizado = false;          ///< frmHistoricoXEmpleados
    qint32 proveedor = -1;            ///< frmFiltrosProductos, frmProductosVendidos; reset: load of frmFiltrosProductos, to -1
    bool bajoMinimos = false;         ///< frmFiltrosProductos
    qint32 proveedorBajoMinimos = -1; ///< frmFiltrosProductos; reset: its load, to -1
    QString claseProducto;            ///< frmFiltrosProductos: "V", "CI", "A" or "" (all); reset: its load, to ""
    QString columnaOrden;             ///< frmFiltrosProductos, FrmOrdenClientes, frmOrdenServicios, the menu's birthday row
    QString titulo;                   ///< frmFiltrosProductos, the menu's row of money on deposit: the title of a listing
    bool cumpleanios = false;         ///< the menu's birthday row; reset: the menu's row of the client listing
    bool soloConEmail = false;        ///< FrmOrdenClientes; reset: its load
    qint16 mes = 0;                   ///< frmMeses: 1 to 12
    qint16 anio = 0;                  ///< frmMeses
    qint32 TarifaAplicada = 0;        ///< the label builder that reads this copy's tariff, -1 when there is none
    EtiquetasClientes etiquetas;      ///< the panel of the client labels

    friend bool operator==(const Filtros&, const Filtros&) = default;
};

} // namespace kestrane
