#pragma once

#include <QString>

/// The control that turns a layout file and the staging tables into a preview. It is told what to do property by property; the
/// layout file itself says which rows it reads.
namespace kestrane {

/// Where the control sends a report.
enum class DestinoReport {
    Ventana = 0,
};

/// What the property Action is set to.
enum class AccionReport {
    Ejecuta = 1,
};

class ControlReport
{
public:
    virtual ~ControlReport() = default;

    /// The layout file's full path, formed with "\".
    virtual void ReportFileName(const QString& ruta) = 0;
    /// The title of the preview window.
    virtual void WindowTitle(const QString& titulo) = 0;
    /// Four options that tune the preview window; a control whose window needs no tuning passes over them.
    virtual void OpcionA(bool valor) = 0;
    virtual void OpcionB(int valor) = 0;
    virtual void OpcionC(int valor) = 0;
    virtual void Destination(DestinoReport destino) = 0;
    virtual void OpcionD(int valor) = 0;
    /// Brings the control to a known state just before it runs.
    virtual void Prepara() = 0;
    /// Runs the report: when it comes back the preview is open and needs the staging tables no more. ErrorEjecucion, or
    /// ErrorDeSalida when the disk does not take the report's rows.
    virtual void Action(AccionReport accion) = 0;

    /// Back to the default printer.
    virtual void ReiniciaImpresora() = 0;
    virtual void PrinterName(const QString& dispositivo) = 0;
    virtual void PrinterDriver(const QString& controlador) = 0;
    virtual void PrinterPort(const QString& puerto) = 0;
};

} // namespace kestrane
