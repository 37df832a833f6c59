#include "platform/printing/trabajo_impresion.h"

#include "platform/printing/impresora.h"
#include "platform/runtime/error_de_salida.h"

#include <QPageLayout>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace kestrane::printing {

using namespace Qt::StringLiterals;

namespace {

constexpr double MilimetrosPorPulgada = 25.4;

/// The name of the printer that takes the job.
QString elige(const QString& pedida)
{
    QString nombre = pedida.isEmpty() ? impresoraPredeterminada() : pedida;
    if (nombre.isEmpty())
        throw ErrorDeSalida{u"no hay ninguna impresora"_s};
    if (!existeImpresora(nombre))
        throw ErrorDeSalida{u"la impresora \"%1\" no existe"_s.arg(nombre)};
    return nombre;
}

struct Intervalo
{
    int primera = 0; ///< from 0
    int ultima = 0;

    [[nodiscard]] int paginas() const { return ultima - primera + 1; }
};

Intervalo intervaloDe(const PeticionImpresion& peticion, int paginas)
{
    const int hasta = peticion.hasta <= 0 ? paginas : std::min(peticion.hasta, paginas);
    const int desde = std::max(peticion.desde, 1);
    if (desde > hasta)
        throw ErrorDeSalida{u"el informe no tiene las páginas pedidas"_s};
    return {.primera = desde - 1, .ultima = hasta - 1};
}

/// The margins are the layout's: the page is painted from the paper's corner.
void prepara(QPrinter& impresora, const TrabajoImpresion& trabajo, const PeticionImpresion& peticion)
{
    impresora.setFullPage(true);
    impresora.setDocName(trabajo.titulo);
    impresora.setCreator(u"Kestrane Listados"_s);
    impresora.setCopyCount(std::max(peticion.copias, 1));
    impresora.setCollateCopies(peticion.intercaladas);
}

void ponHoja(QPrinter& impresora, const QSizeF& tamano)
{
    const bool apaisada = tamano.width() > tamano.height();
    const QPageSize papel{apaisada ? tamano.transposed() : tamano, QPageSize::Millimeter, {}, QPageSize::FuzzyMatch};
    impresora.setPageSize(papel);
    impresora.setPageOrientation(apaisada ? QPageLayout::Landscape : QPageLayout::Portrait);
    impresora.setPageMargins(QMarginsF{});
}

/// Composes all pages without a printer: an error among them must come before the job begins, for Qt has no way to take back one
/// that was begun. False when it was broken off.
bool compruebaPaginas(const TrabajoImpresion& trabajo, const Intervalo& intervalo, const AvanceImpresion& avance)
{
    for (int indice = intervalo.primera; indice <= intervalo.ultima; ++indice) {
        if (avance && !avance(0))
            return false;
        static_cast<void>(trabajo.pagina(indice));
    }
    return true;
}

[[noreturn]] void noTomaElTrabajo(const QString& nombre)
{
    throw ErrorDeSalida{u"la impresora \"%1\" no admite el trabajo"_s.arg(nombre)};
}

/// Paints one page after the other; how many, which are fewer when it was broken off.
int pintaPaginas(QPrinter& impresora, QPainter& lienzo, const TrabajoImpresion& trabajo, const Intervalo& intervalo,
                 const AvanceImpresion& avance)
{
    for (int indice = intervalo.primera; indice <= intervalo.ultima; ++indice) {
        const int pintadas = indice - intervalo.primera;
        if (avance && !avance(static_cast<double>(pintadas) / intervalo.paginas()))
            return pintadas;
        const report::PaginaCompuesta pagina = trabajo.pagina(indice);
        ponHoja(impresora, pagina.tamano);
        if (pintadas == 0 ? !lienzo.begin(&impresora) : !impresora.newPage())
            noTomaElTrabajo(impresora.printerName());
        trabajo.pinta(lienzo, pagina, impresora.resolution() / MilimetrosPorPulgada);
    }
    return intervalo.paginas();
}

} // namespace

int imprimeTrabajo(const TrabajoImpresion& trabajo, const PeticionImpresion& peticion, const AvanceImpresion& avance)
{
    const QString nombre = elige(peticion.impresora);
    const Intervalo intervalo = intervaloDe(peticion, trabajo.paginas);
    if (!compruebaPaginas(trabajo, intervalo, avance))
        return 0;
    QPrinter impresora{QPrinterInfo::printerInfo(nombre), QPrinter::HighResolution};
    prepara(impresora, trabajo, peticion);
    QPainter lienzo;
    const int pintadas = pintaPaginas(impresora, lienzo, trabajo, intervalo, avance);
    if (pintadas == 0 || (pintadas < intervalo.paginas() && impresora.abort()))
        return 0;
    if (!lienzo.end() || impresora.printerState() == QPrinter::Error)
        noTomaElTrabajo(nombre);
    // The print system tells Qt nothing of a job that it did not take: a printer that is gone by now did not.
    elige(nombre);
    return pintadas;
}

} // namespace kestrane::printing
