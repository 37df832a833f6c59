#pragma once

#include "platform/database/ambito_informe.h"
#include "platform/database/entorno_datos.h"
#include "platform/jet/traductor.h"

#include <QString>

#include <memory>

namespace kestrane::database {

class Sesion;
class EstadoInforme;

/// A connection to one database, by its data source name: through ODBC when the machine defines the name, else the embedded file.
///
/// Statements are Jet SQL. There is one thread.
class Conexion
{
public:
    /// Closed. `entorno` must outlive it.
    explicit Conexion(EntornoDatos& entorno);
    /// Closes without a word; of rows that could not be sent EntornoDatos::termina tells.
    ~Conexion();
    Conexion(const Conexion&) = delete;
    Conexion& operator=(const Conexion&) = delete;

    /// "dsn=NAME", for Open.
    void ConnectionString(const QString& cadena) { m_cadena = cadena; }
    [[nodiscard]] const QString& ConnectionString() const { return m_cadena; }

    /// Opens `cadena`, or ConnectionString when it is empty. An open connection is closed first. Error -2147467259 with the reason:
    /// malformed text, no such file, no database, no rights, server not to be reached.
    void Open(const QString& cadena = {}, const QString& usuario = {}, const QString& clave = {});
    /// Runs a statement without a result. Returns the rows inserted, changed or deleted (0 of a query).
    qint64 Execute(const QString& sentencia);
    /// Sends the gathered rows and ends the recordsets that are open on it. Harmless on a closed connection. Throws when rows
    /// were refused or could not be sent; closed it is all the same.
    void Close();

    [[nodiscard]] bool abierta() const { return m_sesion != nullptr; }
    /// What kind of statement a text is, without running it. Error -2147217900 when it is none.
    [[nodiscard]] jet::Traduccion::Clase claseDe(const QString& sentencia);
    /// Whether the database has a table of that name, case ignored.
    [[nodiscard]] bool tieneTabla(QStringView nombre);
    [[nodiscard]] jet::Motor motor();
    [[nodiscard]] EntornoDatos& entorno() const { return m_entorno; }

    /// While the returned object lives, answers are remembered and announced reads come ahead of need.
    [[nodiscard]] AmbitoInforme EmpiezaInforme();

    /// The open session, for recordsets; opened anew when the database was lost. Error -2147467259 on a closed connection.
    [[nodiscard]] Sesion& sesion();

private:
    void abre();

    EntornoDatos& m_entorno;
    QString m_cadena;
    QString m_usuario;
    QString m_clave;
    std::shared_ptr<EstadoInforme> m_informe;
    std::unique_ptr<Sesion> m_sesion;
};

} // namespace kestrane::database

namespace kestrane {
using database::Conexion;
using database::EntornoDatos;
} // namespace kestrane
