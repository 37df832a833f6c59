#include "pipeline/forms/control_report_vista.h"

#include "platform/runtime/ruta.h"

namespace kestrane {

AbreInforme abreDocumento(database::EntornoDatos& entorno, report::ExportaDocumento exporta)
{
    return [&entorno, exporta = std::move(exporta)](const QString& ruta) -> std::unique_ptr<report::FuenteVista> {
        return std::make_unique<report::DocumentoVista>(std::make_unique<report::Documento>(ruta, entorno), exporta);
    };
}

void ControlReportVista::Action(AccionReport)
{
    m_ventanas.abre(m_abre(rutaDeMaquina(m_ruta)), m_titulo, m_impresora);
}

} // namespace kestrane
