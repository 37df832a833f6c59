#pragma once

#include "platform/database/conexion.h"
#include "run_context/array_panel.h"
#include "run_context/filtros.h"

#include <QString>

namespace kestrane {

/// The one record of values that holds for the whole run: filled once at the start, changed only by the menu and the dialogs, read
/// by everybody. Plain values, no accessors. A text that nothing supplied is empty, a number 0, a flag false, a date the zero date.
struct ContextoEjecucion
{
    explicit ContextoEjecucion(EntornoDatos& entorno) : ConexionTienda{entorno}, ConexionListados{entorno} {}

    Conexion ConexionTienda;   ///< the shop's tables
    Conexion ConexionListados; ///< informes, subinformes, listadostemporal

    // Read at the start.
    QString CarpetaPrograma; ///< where the executable stands: layouts, ayudas, fotos
    QString IdentificadorEquipo;
    QString List1;
    QString ClaveInstancia;
    QString RutaFotos;
    qint32 Tema = 0;
    double AnchoVentana = 0; ///< twips, as the next three
    double AltoVentana = 0;
    double AnchoDiseno = 0;
    double AltoDiseno = 0;
    qint32 TamanoLetra = 0;
    QString RutaBandera;
    QString NombreRegional;
    bool MigracionVentas = false;
    Fecha FechaMigracionVentas;
    QString NombreTerminal;
    qint32 EmpleadoTerminal = 0;
    QString ImpresoraTicket;
    QString ImpresoraListados;
    QString ImpresoraEtiquetas;
    qint16 NumDecimales = 0;
    QString TipoPrograma;
    bool UtilizaColoresEmpleados = false;
    QString NombreEmpresa;
    QString DireccionEmpresa;
    QString PoblacionEmpresa;
    QString ProvinciaEmpresa;
    QString CPEmpresa;
    QString CifEmpresa;
    QString Moneda;
    QString SimboloMoneda;
    QString IdentificacionFiscal;
    QString NombreTienda;
    bool MultiTienda = false;
    ArrayPanel Tiendas; ///< 0 "Todas", 1 to N the stores, N+1 blank; unallocated where there is no list
    bool PermiteListadoVariosDias = false;
    bool ModuloFacturas = false;

    // Set by dialogs and menu during the run.
    bool FiltroAceptado = false;
    Fecha FechaDesde;
    Fecha FechaHasta;
    QString TiendaSeleccionada; ///< "" is all stores
    bool FormatoTicket = false;
    bool CajaCompleta = false;
    QString ModoBusqueda; ///< "Cl" or "Pr"
    QString ClienteBuscado;
    bool ReimprimirFactura = false;
    QString NumeroReimpresion;
    bool SoloBajoMinimos = false;
    Filtros filtros;
};

/// The central installation, which covers several stores: it is called "Servidor", in this spelling. The list of its stores may be
/// missing all the same.
[[nodiscard]] inline bool enServidor(const ContextoEjecucion& contexto)
{
    return contexto.NombreTienda == u"Servidor" && contexto.MultiTienda;
}

} // namespace kestrane
