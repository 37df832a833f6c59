#include "platform/report/export/exportacion.h"

#include "platform/report/export/avance_exportacion.h"
#include "platform/report/export/csv.h"
#include "platform/report/export/fichero_provisional.h"
#include "platform/report/export/html.h"
#include "platform/report/export/paginas_informe.h"
#include "platform/report/export/pdf.h"
#include "platform/report/export/png.h"
#include "platform/report/export/xlsx.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/fichero_destino.h"
#include "platform/runtime/motivo_sistema.h"

#include <QSaveFile>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

using Escritura = std::function<bool(QIODevice&)>;

/// A file that takes its name when `escribe` has written it and the disk has taken all of it.
bool escribeFichero(const QString& nombre, const Escritura& escribe)
{
    QSaveFile fichero{destinoDeEscritura(nombre)};
    if (!fichero.open(QIODevice::WriteOnly))
        noSePuedeEscribir(nombre, motivoDe(fichero));
    if (!escribe(fichero))
        return false;
    confirma(fichero);
    return true;
}

bool exportaPaginas(Documento& documento, FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance)
{
    const auto paginas = paginasDe(documento, avance);
    if (!paginas)
        return false;
    if (formato == FormatoExportacion::Png)
        return escribePng(*paginas, fichero, avance);
    return escribeFichero(fichero, [&](QIODevice& destino) { return escribePdf(*paginas, destino, avance); });
}

/// The name of a sub-report whose layout gives it none.
QString tituloDe(const DatosSubinforme& subinforme)
{
    return subinforme.titulo.isEmpty() ? u"Resumen"_s : subinforme.titulo;
}

std::vector<TablaInforme> tablasDeSubinformes(const Documento& documento)
{
    std::vector<TablaInforme> tablas;
    for (const DatosSubinforme& uno : documento.subinformes())
        tablas.emplace_back(FuenteTabla{uno.layout, uno.filas, documento.regional(), tituloDe(uno)});
    return tablas;
}

bool exportaTablas(const Documento& documento, FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance)
{
    const TablaInforme tabla{{documento.layout(), documento.filas(), documento.regional()}};
    if (formato == FormatoExportacion::Csv)
        return escribeFichero(fichero, [&](QIODevice& destino) { return escribeCsv(tabla, destino, avance); });
    const std::vector<TablaInforme> subinformes = tablasDeSubinformes(documento);
    if (formato == FormatoExportacion::Xlsx)
        return escribeXlsx(tabla, fichero, avance, subinformes);
    return escribeFichero(fichero, [&](QIODevice& destino) { return escribeHtml(tabla, destino, avance, subinformes); });
}

} // namespace

bool exporta(Documento& documento, FormatoExportacion formato, const QString& fichero, const AvanceExportacion& avance)
{
    if (formato == FormatoExportacion::Pdf || formato == FormatoExportacion::Png)
        return exportaPaginas(documento, formato, fichero, avance);
    return exportaTablas(documento, formato, fichero, avance);
}

} // namespace kestrane::report
