#pragma once

#include "platform/report/documento.h"
#include "platform/report/export/exportacion.h"

#include <QDeadlineTimer>
#include <QPainter>

namespace kestrane::report {

/// What the preview window sees of a report. Pages are known in order, one after the other; the number of them is final when the
/// report is complete. One thread.
class FuenteVista
{
public:
    virtual ~FuenteVista() = default;

    [[nodiscard]] virtual QString titulo() const = 0;
    /// Pages laid out so far.
    [[nodiscard]] virtual int paginas() const = 0;
    [[nodiscard]] virtual bool completa() const = 0;
    /// 0 to 1.
    [[nodiscard]] virtual double avance() const = 0;
    /// Lays out on until `plazo`; true when the last page is known. Errors of the report.
    virtual bool avanza(QDeadlineTimer plazo) = 0;
    /// Millimetres of a page that is laid out.
    [[nodiscard]] virtual QSizeF tamano(int pagina) = 0;
    /// A page that is laid out, composed. Errors of the report.
    [[nodiscard]] virtual PaginaCompuesta pagina(int pagina) = 0;
    virtual void pinta(QPainter& pintor, const PaginaCompuesta& pagina, double porMilimetro) = 0;
    /// Groups with a title met so far; entries are only added at the end.
    [[nodiscard]] virtual const std::vector<EntradaIndice>& indice() const = 0;
    /// Lays out anew from the first page. When that is not possible, the error, and all stays as it was.
    virtual void actualiza() = 0;
    /// As report::exporta.
    virtual bool exporta(FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance) = 0;
    /// What stands behind it, for the printer; null where there is no such thing.
    [[nodiscard]] virtual Documento* documento() { return nullptr; }
};

} // namespace kestrane::report
