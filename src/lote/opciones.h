#pragma once

#include "lote/pedido_informe.h"
#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/resultado.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kestrane::lote {

/// What `listados-lote` was asked for.
struct Opciones
{
    enum class Trabajo { Ayuda, Lista, Informe, Sql, SqlFichero };
    enum class Base { Tienda, Listados };

    Trabajo trabajo = Trabajo::Ayuda;
    QString carpeta; ///< of the embedded databases
    ConfiguracionRegional regional;

    PedidoInforme informe;
    std::optional<Fecha> hoy; ///< the day that the report takes for today, else the machine's

    QString texto; ///< the statement of Sql, the file's name of SqlFichero, the page of Ayuda
    Base base = Base::Tienda;
    QString dsn; ///< data source, the base's own when not given
    bool escribir = false;
};

/// Reads a command line (the program's name first). `carpetaPrograma` is the folder in which `datos` lies when none is named.
[[nodiscard]] Resultado<Opciones, ErrorDeUso> leeOpciones(const QStringList& argumentos, const QString& carpetaPrograma);

} // namespace kestrane::lote
