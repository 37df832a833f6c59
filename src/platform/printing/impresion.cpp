#include "platform/printing/impresion.h"

#include "platform/printing/trabajo_impresion.h"
#include "platform/report/pintor.h"

namespace kestrane::printing {

namespace {

constexpr std::chrono::milliseconds CadaAviso{50};

} // namespace

int imprime(report::Documento& documento, const PeticionImpresion& peticion, const AvanceImpresion& avance)
{
    while (!documento.avanza(QDeadlineTimer{CadaAviso})) {
        if (avance && !avance(documento.avance()))
            return 0;
    }
    report::PintorPaginas pintor;
    const TrabajoImpresion trabajo{
        .titulo = documento.layout().titulo,
        .paginas = documento.paginas(),
        .pagina = [&documento](int indice) { return documento.pagina(indice); },
        .pinta = [&pintor](QPainter& lienzo, const report::PaginaCompuesta& pagina,
                           double porMilimetro) { pintor.pinta(lienzo, pagina, porMilimetro); },
    };
    return imprimeTrabajo(trabajo, peticion, avance);
}

} // namespace kestrane::printing
