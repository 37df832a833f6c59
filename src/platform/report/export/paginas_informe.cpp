#include "platform/report/export/paginas_informe.h"

#include "platform/report/export/avance_exportacion.h"
#include "platform/report/pintor.h"

namespace kestrane::report {

namespace {

constexpr std::chrono::milliseconds CadaAviso{50};

} // namespace

std::optional<PaginasInforme> paginasDe(Documento& documento, const AvanceExportacion& avance)
{
    while (!documento.avanza(QDeadlineTimer{CadaAviso})) {
        if (avance && !avance(documento.avance()))
            return {};
    }
    const auto pintor = std::make_shared<PintorPaginas>();
    return PaginasInforme{
        .titulo = documento.layout().titulo,
        .paginas = documento.paginas(),
        .pagina = [&documento](int indice) { return documento.pagina(indice); },
        .pinta = [pintor](QPainter& lienzo, const PaginaCompuesta& pagina,
                          double porMilimetro) { pintor->pinta(lienzo, pagina, porMilimetro); },
    };
}

} // namespace kestrane::report
