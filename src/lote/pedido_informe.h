#pragma once

#include "pipeline/catalogue/fila_catalogo.h"
#include "platform/runtime/resultado.h"
#include "platform/runtime/valor.h"

#include <QCommandLineParser>
#include <QList>

#include <map>
#include <optional>
#include <span>

namespace kestrane::lote {

/// Why the command line makes no sense: one Spanish sentence.
struct ErrorDeUso
{
    QString mensaje;
};

/// What the dialogs of a report can be answered with.
enum class Respuesta {
    Desde,
    Hasta,
    Completa,
    Ticket,
    Cliente,
    Empleado,
    Proveedor,
    Seccion,
    Solo,
    Clase,
    BajoMinimos,
    Orden,
    SoloEmail,
    Totalizado,
    Mes,
    Anio,
    Factura,
};

/// The option of an answer, for example "--desde".
[[nodiscard]] QString opcionDe(Respuesta respuesta);

enum class Formato { Json, Csv, Pdf, Xlsx, Png, Html };

/// Whether it needs an application that paints.
[[nodiscard]] bool pinta(Formato formato);
/// Whether it makes no sense on a terminal.
[[nodiscard]] bool esBinario(Formato formato);

/// A report as the command line asks for it.
struct PedidoInforme
{
    const catalogue::FilaCatalogo* fila = nullptr;
    std::map<Respuesta, Valor> respuestas; ///< dates, 32-bit numbers, texts; true for those without a value
    std::optional<QString> tienda;
    Formato formato = Formato::Json;
    QString salida;          ///< file, "" for the standard output
    QString carpetaListados; ///< where the reports database of the run stays, "" when it is not kept
};

/// The options that only a report takes.
[[nodiscard]] QList<QCommandLineOption> opcionesDeInforme();
/// Those of them for which the empty text is a value.
[[nodiscard]] QStringList opcionesQueAdmitenVacio();
/// The first of them that was given, as "--desde".
[[nodiscard]] std::optional<QString> primeraOpcionDeInforme(const QCommandLineParser& lector);
/// Reads them for the button `control`. An unknown button, one that is no report, and a value that makes no sense are errors.
[[nodiscard]] Resultado<PedidoInforme, ErrorDeUso> leePedido(const QString& control, const QCommandLineParser& lector);

} // namespace kestrane::lote
