#pragma once

#include "platform/report/export/avance_exportacion.h"
#include "platform/report/export/tabla_informe.h"

namespace kestrane::report {

/// Takes the table of a report from top to bottom. Groups are counted from the outermost, 0.
class DestinoTabla
{
public:
    virtual ~DestinoTabla() = default;

    virtual void empiezaGrupo(int grupo, const QString& titulo) = 0;
    virtual void fila(const std::vector<Valor>& valores) = 0;
    /// Behind the last row of a group, or of the report (`grupo` -1); only where some column has a total. Null in the columns that
    /// have none.
    virtual void totales(int grupo, const QString& titulo, const std::vector<Valor>& valores) = 0;
};

/// Walks through all rows. False when `avance` broke it off.
bool recorre(const TablaInforme& tabla, DestinoTabla& destino, const AvanceExportacion& avance);

} // namespace kestrane::report
