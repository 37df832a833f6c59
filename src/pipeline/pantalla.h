#pragma once

#include <QString>
#include <QStringView>

/// What the reports' road needs of the screen. The windows implement these faces, and so do `listados-lote` and the tests.
namespace kestrane {

/// The progress window, which shows that a builder is at work.
class Progreso
{
public:
    virtual ~Progreso() = default;
    /// Shows the window beside which the builder works.
    virtual void Muestra() = 0;
    /// One step further: a sign of life, not a percentage.
    virtual void IncrementaBarra() = 0;
    /// Harmless when it is not shown.
    virtual void cerrar() = 0;
};

/// The filter dialogs that a row of the catalogue shows.
enum class Dialogo {
    Fechas,             ///< frmFechas
    FechasConFormatos,  ///< frmFechas with its panel of formats
    Buscar,             ///< frmBuscar
    HistoricoXClientes, ///< frmHistoricoXClientes
    HistoricoXEmpleados,
    FiltrosProductos,
    ProductosVendidos,
    OrdenClientes,
    OrdenServicios,
    ClientesPerdidos,
    Meses,
    SelTienda,
    ReImprimir,
};

/// Shows a dialog and comes back when it is closed; what the operator chose then stands in the run context.
class Dialogos
{
public:
    virtual ~Dialogos() = default;
    /// `titulo` is the caption that frmFechas puts on its format labels; the others take none.
    virtual void Muestra(Dialogo dialogo, const QString& titulo) = 0;
};

/// The road from filled staging tables to the preview, and from a chart's name to its window.
class Salida
{
public:
    virtual ~Salida() = default;
    /// Serves the events that wait, so that the window stays alive.
    virtual void DrenaEventos() = 0;
    /// Chooses the printer of the next report by its device name; an unknown or empty name leaves the default one.
    virtual void DarImpresora(const QString& nombre) = 0;
    /// Shows the report of the layout file `nombre` (no path), or says that there is nothing to show.
    virtual void ImprimirReport(const QString& nombre) = 0;
    virtual void MostrarGrafico(const QString& nombre) = 0;
};

/// Message boxes.
class Mensajes
{
public:
    virtual ~Mensajes() = default;
    virtual void Informa(const QString& texto, const QString& titulo) = 0;
    virtual void Critico(const QString& texto, const QString& titulo) = 0;
};

/// What a button of the menu does when it is no report.
enum class AccionMenu {
    Carteles,                ///< frmSeleccionCartel
    EtiquetasDeProductos,    ///< frmSeleccionEtiquetas
    EtiquetasDeProductosTPV, ///< frmSeleccionEtiquetasTPV
    EtiquetasDeClientes,     ///< the panel frAviso
    Ayuda,
    Salir,
};

/// The menu from which the reports are started.
class Menu
{
public:
    virtual ~Menu() = default;
    virtual void Haz(AccionMenu accion) = 0;
    /// Paints the menu anew where a dialog would have covered it.
    virtual void Repinta() = 0;
    /// The label lblInfo, which says that a report may take minutes.
    virtual void MuestraInfo() = 0;
    virtual void OcultaInfo() = 0;
};

/// All that a report reaches of the screen.
struct Pantalla
{
    Menu& menu;
    Dialogos& dialogos;
    Progreso& progreso;
    Salida& salida;
    Mensajes& mensajes;
};

} // namespace kestrane
