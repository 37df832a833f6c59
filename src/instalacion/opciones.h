#pragma once

#include "instalacion/demo/parametros.h"
#include "platform/jet/traductor.h"
#include "platform/runtime/resultado.h"

#include <QString>
#include <QStringList>

namespace kestrane::instalacion {

/// What `crear-tienda` was asked for.
struct Opciones
{
    enum class Trabajo { Ayuda, Vacias, Demostracion };
    enum class SiExiste { Rehusa, Reemplaza };

    Trabajo trabajo = Trabajo::Ayuda;
    jet::Motor motor = jet::Motor::Sqlite;
    SiExiste siExiste = SiExiste::Rehusa;
    QString carpeta;            ///< of the embedded databases
    bool carpetaPedida = false; ///< the command line names it
    QString dsn;                ///< of the shop's database on a server
    QString dsnListados;        ///< of the reports database on a server; "" when the machine's set-up decides
    demo::Parametros demo;      ///< of the demo shop

    friend bool operator==(const Opciones&, const Opciones&) = default;
};

/// Reads a command line (the program's name first); the error is a Spanish sentence. `carpetaPrograma` is the folder in which
/// `datos` lies when none is named, `equipo` the terminal of a demo shop when none is named.
[[nodiscard]] Resultado<Opciones, QString> leeOpciones(const QStringList& argumentos, const QString& carpetaPrograma,
                                                       const QString& equipo = {});

/// The page that `--ayuda` shows.
[[nodiscard]] QString textoDeAyuda();

} // namespace kestrane::instalacion
