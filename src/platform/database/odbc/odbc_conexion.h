#pragma once

#include "platform/database/odbc/odbc_errores.h"
#include "platform/database/odbc/odbc_opciones.h"
#include "platform/database/odbc/odbc_recursos.h"
#include "platform/jet/traductor.h"

#include <QString>

#include <memory>

namespace kestrane::database::odbc {

/// An open connection and what is known of the driver behind it. Shared by the statements made on it.
class OdbcConexion
{
public:
    /// Error ConexionImposible when the server cannot be reached, refuses the user or is neither PostgreSQL nor MariaDB.
    OdbcConexion(const QString& dsn, const QString& usuario, const QString& clave, const OpcionesOdbc& opciones);
    ~OdbcConexion();
    OdbcConexion(const OdbcConexion&) = delete;
    OdbcConexion& operator=(const OdbcConexion&) = delete;

    [[nodiscard]] jet::Motor motor() const { return m_motor; }
    [[nodiscard]] const OpcionesOdbc& opciones() const { return m_opciones; }
    /// True when the driver passes SQL_C_CHAR on as UTF-8, unchanged.
    [[nodiscard]] bool enUtf8() const { return m_enUtf8; }
    /// The form in which texts pass.
    [[nodiscard]] SQLSMALLINT tipoTexto() const { return m_enUtf8 ? SQL_C_CHAR : SQL_C_WCHAR; }
    /// True when a long text of any row of a block can be read after the block was fetched.
    [[nodiscard]] bool leeLargosPorPosicion() const { return m_motor == jet::Motor::PostgreSql; }
    [[nodiscard]] bool perdida() const { return m_perdida; }
    void daPorPerdida() noexcept { m_perdida = true; }

    [[nodiscard]] ManejadorSentencia nuevaSentencia();
    /// From now on waits that long for another program's lock.
    void ponEspera(std::chrono::milliseconds espera);
    /// Runs a statement without parameters and result.
    void ejecuta(const QString& sql);

    /// The error of the last call on `sentencia`; notes a connection that is gone.
    [[noreturn]] void lanza(SQLHSTMT sentencia) { lanzaDe(SQL_HANDLE_STMT, sentencia); }
    /// Throws unless `resultado` says that the call did its work.
    void exige(SQLRETURN resultado, SQLHSTMT sentencia)
    {
        if (!SQL_SUCCEEDED(resultado)) [[unlikely]]
            lanza(sentencia);
    }

private:
    void abre(const QString& cadena);
    void reconoceServidor();
    void preparaSesion();
    [[nodiscard]] bool pasaUtf8();
    void eligeForma();
    [[nodiscard]] Enlace enlace() const;
    [[noreturn]] void lanzaDe(SQLSMALLINT clase, SQLHANDLE manejador);
    [[noreturn]] void lanzaAlAbrir();

    OrigenDatos m_origen;
    OpcionesOdbc m_opciones;
    ManejadorEntorno m_entorno;
    ManejadorConexion m_conexion;
    jet::Motor m_motor = jet::Motor::PostgreSql;
    bool m_enUtf8 = false;
    bool m_perdida = false;
};

/// Statements that stand or fall together. Taken back unless confirmed.
class Transaccion
{
public:
    explicit Transaccion(OdbcConexion& conexion);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;

    void confirma();

private:
    OdbcConexion& m_conexion;
    bool m_terminada = false;
};

} // namespace kestrane::database::odbc
