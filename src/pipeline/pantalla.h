#pragma once

#include "pipeline/matriz_grafico.h"

#include <QString>
#include <QStringView>

#include <functional>

/// What the reports' road needs of the screen. The windows implement these faces, and so do `listados-lote` and the tests.
namespace kestrane {

/// Said in the information box "Listados" when a builder, dialog, chart or window is not there yet.
inline constexpr QStringView AvisoNoDisponible = u"Este listado todavía no está disponible.";

/// The progress window, which shows that a builder is at work. There is one of it, whoever shows it.
class Progreso
{
public:
    virtual ~Progreso() = default;
    /// Shows the window, not modal: the builder works beside it and the menu stays enabled. Harmless when it is shown already.
    virtual void Muestra() = 0;
    /// One step further: a sign of life, not a percentage.
    virtual void IncrementaBarra() = 0;
    /// Harmless when it is not shown.
    virtual void cerrar() = 0;
};

/// Where the rows of the catalogue take their choices from.
enum class Dialogo {
    Fechas,              ///< frmFechas
    FechasConFormatos,   ///< frmFechas with its panel of formats
    Buscar,              ///< frmBuscar
    HistoricoXClientes,  ///< frmHistoricoXClientes
    HistoricoXEmpleados, ///< frmHistoricoXEmpleados
    FiltrosProductos,    ///< frmFiltrosProductos
    ProductosVendidos,   ///< frmProductosVendidos
    OrdenClientes,       ///< FrmOrdenClientes
    OrdenServicios,      ///< frmOrdenServicios
    ClientesPerdidos,    ///< frClientesPerdidos
    Meses,               ///< frmMeses
    SelTienda,           ///< frmSelTienda
    ReImprimir,          ///< frmReImprimir
    EtiquetasClientes,   ///< frAviso, a panel of the menu and open already: it is read and closed
};

/// The dialogs, each modal.
class Dialogos
{
public:
    virtual ~Dialogos() = default;
    /// Whether there is such a dialog yet.
    [[nodiscard]] virtual bool Existe(Dialogo dialogo) const = 0;
    /// Shows a dialog and comes back when it is closed; what the operator chose then stands in the run context. `titulo` is the
    /// caption that frmFechas puts on its format labels; the others take none.
    virtual void Muestra(Dialogo dialogo, const QString& titulo) = 0;
};

/// Fills the matrix of a chart, each time anew; it holds as long as the call that was given it. An ErrorEjecucion when that fails.
using DatosDeGrafico = std::function<MatrizGrafico()>;

/// The road from filled staging tables to the preview, and from a chart's name to its window.
class Salida
{
public:
    virtual ~Salida() = default;
    /// Serves the events that wait, so that the window stays alive.
    virtual void DrenaEventos() = 0;
    /// Chooses the printer of the next report by its device name; an unknown or empty name leaves the default one.
    virtual void DarImpresora(const QString& nombre) = 0;
    /// Shows the report of the layout file `nombre` (no path) in a preview that is left open, or says that there is nothing to
    /// show.
    virtual void ImprimirReport(const QString& nombre) = 0;
    /// Shows the chart `nombre` in its modal window, which asks for the data once, when it loads.
    virtual void MostrarGrafico(const QString& nombre, const DatosDeGrafico& datos) = 0;
};

/// Message boxes, modal, with one button.
class Mensajes
{
public:
    virtual ~Mensajes() = default;
    /// With the information icon.
    virtual void Informa(const QString& texto, const QString& titulo) = 0;
    /// With the icon of a critical error.
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
    /// The caption that the button `control` bears, in the operator's language.
    [[nodiscard]] virtual QString Leyenda(QStringView control) const = 0;
    /// The three windows for posters and product labels are modal; Salir does not come back.
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
