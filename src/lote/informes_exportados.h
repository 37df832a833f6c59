#pragma once

#include "lote/escritor_informes.h"
#include "platform/report/export/exportacion.h"

namespace kestrane::lote {

/// Reports as their layouts say, in one of the formats of the report engine. One without data is not written.
class InformesExportados final : public EscritorInformes
{
public:
    /// Layouts lie in `carpetaPrograma`.
    InformesExportados(report::FormatoExportacion formato, QString carpetaPrograma);

    /// ErrorEjecucion LayoutIncorrecto when the layout cannot be read, PeticionImposible when the report has none.
    [[nodiscard]] QStringList escribe(const InformeMostrado& informe, Conexion& listados, const QString& base) override;

private:
    report::FormatoExportacion m_formato;
    QString m_carpetaPrograma;
};

} // namespace kestrane::lote
