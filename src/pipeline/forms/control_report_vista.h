#pragma once

#include "pipeline/control_report.h"
#include "platform/report/preview/documento_vista.h"
#include "platform/report/preview/ventanas_vista.h"

namespace kestrane {

/// Opens the layout file at a path of this machine. Errors of the report.
using AbreInforme = std::function<std::unique_ptr<report::FuenteVista>(const QString& ruta)>;

/// On the rows behind the layout's data source; `exporta` writes what the preview is asked to save. `entorno` outlives the function
/// and what it opens.
[[nodiscard]] AbreInforme abreDocumento(database::EntornoDatos& entorno, report::ExportaDocumento exporta);

/// The report control whose reports open in preview windows that are left open.
class ControlReportVista final : public ControlReport
{
public:
    /// `ventanas` outlives it and owns the windows.
    ControlReportVista(report::VentanasVista& ventanas, AbreInforme abre) : m_ventanas{ventanas}, m_abre{std::move(abre)} {}

    void ReportFileName(const QString& ruta) override { m_ruta = ruta; }
    void WindowTitle(const QString& titulo) override { m_titulo = titulo; }
    // The preview remembers by itself how it is looked at.
    void OpcionA(bool) override {}
    void OpcionB(int) override {}
    void OpcionC(int) override {}
    void Destination(DestinoReport) override {}
    void OpcionD(int) override {}
    /// Nothing to do: each run begins anew.
    void Prepara() override {}
    void Action(AccionReport accion) override;

    void ReiniciaImpresora() override { m_impresora.clear(); }
    /// The device name is enough to find a printer.
    void PrinterName(const QString& dispositivo) override { m_impresora = dispositivo; }
    void PrinterDriver(const QString&) override {}
    void PrinterPort(const QString&) override {}

private:
    report::VentanasVista& m_ventanas;
    AbreInforme m_abre;
    QString m_ruta;
    QString m_titulo;
    QString m_impresora;
};

} // namespace kestrane
