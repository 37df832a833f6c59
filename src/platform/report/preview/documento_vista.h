#pragma once

#include "platform/report/pintor.h"
#include "platform/report/preview/fuente_vista.h"

#include <functional>

namespace kestrane::report {

/// What writes a document to a file: report::exporta, or a test's own.
using ExportaDocumento = std::function<bool(Documento&, FormatoExportacion, const QString& fichero, const AvanceExportacion&)>;

/// A document as the preview sees it.
class DocumentoVista final : public FuenteVista
{
public:
    DocumentoVista(std::unique_ptr<Documento> documento, ExportaDocumento exporta)
        : m_documento{std::move(documento)}
        , m_exporta{std::move(exporta)}
    {
    }

    /// The layout's title, or the name of its file.
    [[nodiscard]] QString titulo() const override;
    [[nodiscard]] int paginas() const override { return m_documento->paginas(); }
    [[nodiscard]] bool completa() const override { return m_documento->completo(); }
    [[nodiscard]] double avance() const override { return m_documento->avance(); }
    bool avanza(QDeadlineTimer plazo) override { return m_documento->avanza(plazo); }
    [[nodiscard]] QSizeF tamano(int pagina) override;
    [[nodiscard]] PaginaCompuesta pagina(int pagina) override { return m_documento->pagina(pagina); }
    void pinta(QPainter& pintor, const PaginaCompuesta& pagina, double porMilimetro) override;
    [[nodiscard]] const std::vector<EntradaIndice>& indice() const override { return m_documento->indice(); }
    void actualiza() override { m_documento->actualiza(); }
    bool exporta(FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance) override
    {
        return m_exporta(*m_documento, formato, fichero, avance);
    }
    [[nodiscard]] Documento* documento() override { return m_documento.get(); }

private:
    std::unique_ptr<Documento> m_documento;
    ExportaDocumento m_exporta;
    PintorPaginas m_pintor;
};

} // namespace kestrane::report
