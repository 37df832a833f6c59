#pragma once

#include <QString>

namespace kestrane {

/// What the dialogs leave for the builders beside the run context's own values. Each member has its value at the start of the run;
/// what no dialog's load resets keeps its value from one report to the next.
struct Filtros
{
    qint32 cliente = -1;              ///< the client of the client history, written by the menu
    bool todasLasSecciones = false;   ///< frmHistoricoXClientes
    qint32 seccion = -1;              ///< frmHistoricoXClientes and frmFiltrosProductos reset it to -1 (all)
    bool soloProductos = false;       ///< frmHistoricoXClientes
    bool soloServicios = false;       ///< frmHistoricoXClientes
    qint32 empleado = -1;             ///< frmHistoricoXEmpleados, frmProductosVendidos; -1 is all
    bool totalizado = false;          ///< frmHistoricoXEmpleados
    qint32 proveedor = -1;            ///< frmFiltrosProductos resets it to -1 (all); frmProductosVendidos
    bool bajoMinimos = false;         ///< frmFiltrosProductos
    qint32 proveedorBajoMinimos = -1; ///< frmFiltrosProductos resets it to -1 (all)
    QString claseProducto;            ///< "V", "CI", "A" or "" (all); frmFiltrosProductos resets it
    QString columnaOrden;             ///< frmFiltrosProductos, FrmOrdenClientes, frmOrdenServicios, the birthday row
    QString titulo;                   ///< the title that a listing prints, set by its dialog or by the menu
    bool cumpleanios = false;         ///< set by the birthday row, cleared by the client listing's
    bool soloConEmail = false;        ///< FrmOrdenClientes resets it
    qint16 mes = 0;                   ///< frmMeses
    qint16 anio = 0;                  ///< frmMeses
    qint32 TarifaAplicada = -1;       ///< tariff of the labels, -1 when none

    friend bool operator==(const Filtros&, const Filtros&) = default;
};

} // namespace kestrane
