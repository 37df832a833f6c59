#pragma once

#include <QString>

#include <sql.h>
#include <sqlext.h>

#include <stdexcept>
#include <string>

/// What a program without this project's layers would write: the C interface of ODBC with as little around it as handles need.
namespace kestrane::bench {

/// A connection and its environment.
class ConexionDesnuda
{
public:
    explicit ConexionDesnuda(const std::string& dsn);
    ~ConexionDesnuda();
    ConexionDesnuda(const ConexionDesnuda&) = delete;
    ConexionDesnuda& operator=(const ConexionDesnuda&) = delete;

    void ejecuta(const QString& sql) const;
    [[nodiscard]] SQLHDBC mango() const { return m_conexion; }

private:
    SQLHENV m_entorno = SQL_NULL_HENV;
    SQLHDBC m_conexion = SQL_NULL_HDBC;
};

/// A statement, prepared when `sql` is not empty.
class SentenciaOdbc
{
public:
    SentenciaOdbc(const ConexionDesnuda& conexion, const QString& sql);
    ~SentenciaOdbc();
    SentenciaOdbc(const SentenciaOdbc&) = delete;
    SentenciaOdbc& operator=(const SentenciaOdbc&) = delete;

    /// Throws what the driver says unless `estado` is a success.
    void exige(SQLRETURN estado) const;
    [[nodiscard]] SQLHSTMT mango() const { return m_sentencia; }

private:
    SQLHSTMT m_sentencia = SQL_NULL_HSTMT;
};

} // namespace kestrane::bench
