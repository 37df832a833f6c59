#pragma once

#include "platform/database/conexion.h"
#include "platform/runtime/avisos.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <QIODevice>
#include <QStringView>

#include <optional>

namespace kestrane::lote {

/// Runs Jet statements for support and tests and writes one line of JSON for each:
/// `{"columnas":[{"nombre":"numero","tipo":"LONG"}],"filas":[[100]]}`, `{"afectadas":3}` or
/// `{"error":-2147217900,"descripcion":"..."}`.
class ConsolaSql
{
public:
    enum class Permiso { SoloLectura, Escritura };

    /// `conexion` is open; it and the other two outlive the console. `avisos` counts the statements. Under SoloLectura anything but
    /// a SELECT answers with an error and is not run.
    ConsolaSql(database::Conexion& conexion, Permiso permiso, QIODevice& salida, Avisos& avisos);

    /// One statement; the error that it answered with, if it did. Rows go out as they are read, so their number does not matter: an
    /// error in the midst of them leaves their line cut off and stands on the next one. ErrorDeSalida when nothing can be written.
    std::optional<ErrorEjecucion> ejecuta(QStringView sentencia);

    /// The statements of a file, one per line: `\r`, `\n` and `\\` stand for themselves escaped, empty lines are passed over. Goes
    /// on behind errors and returns how many statements answered with one.
    int ejecutaLineas(QIODevice& fichero);

private:
    void responde(const QString& sentencia);
    void respondeFilas(const QString& sentencia);
    void responde(const ErrorEjecucion& error);
    void envia();

    database::Conexion& m_conexion;
    Permiso m_permiso;
    QIODevice& m_salida;
    Avisos& m_avisos;
    QByteArray m_linea;
    bool m_aMedias = false; ///< a line of rows has been sent in part
};

/// The text of a line in which CR, LF and "\" stand as `\r`, `\n` and `\\`; another "\" stands for itself.
[[nodiscard]] QString sinEscapes(QStringView linea);

} // namespace kestrane::lote
