#pragma once

#include <QtGlobal>

#include <chrono>

namespace kestrane::database::odbc {

/// In what form texts pass between program and the PostgreSQL driver. UTF-8 saves it a conversion; whether it hands texts through
/// unchanged is tried when a connection opens, and hangs on the system's locale. MariaDB's always does.
enum class FormaTexto { SegunControlador, Utf16 };

/// Bounds of a connection.
struct OpcionesOdbc
{
    std::chrono::seconds esperaConexion{10};
    /// How long a statement waits for another program that has the rows locked.
    std::chrono::milliseconds espera{5000};
    /// How long a server may say nothing at all before it is taken for lost, where the driver can tell (MariaDB). Far above what
    /// any report's statement takes.
    std::chrono::seconds esperaRespuesta{900};
    /// After how long without a word it is asked whether the server's machine is still there (PostgreSQL).
    std::chrono::seconds sondeo{60};
    int filasPorBloque = 200;                             ///< rows fetched at once of a result that is not small
    qsizetype bytesPorBloque = qsizetype{256} * 1024;     ///< and the bytes of their buffers
    qsizetype bytesPorEnvio = qsizetype{4} * 1024 * 1024; ///< of the rows inserted by one statement
    FormaTexto forma = FormaTexto::SegunControlador;
};

} // namespace kestrane::database::odbc
