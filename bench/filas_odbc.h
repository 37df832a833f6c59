#pragma once

#include "bench/odbc_desnudo.h"

#include <QByteArray>
#include <QByteArrayView>

#include <array>
#include <vector>

namespace kestrane::bench {

/// The rows of a query on a server, fetched in blocks of 500 into bound columns.
class FilasOdbc
{
public:
    FilasOdbc(const ConexionDesnuda& conexion, const QString& sql);

    [[nodiscard]] bool siguiente();
    [[nodiscard]] bool nulo(int columna) const { return celda(columna) == SQL_NULL_DATA; }
    /// 0 for a Null, as the next one.
    [[nodiscard]] double doble(int columna) const { return nulo(columna) ? 0 : de(columna).numeros[m_fila]; }
    [[nodiscard]] int entero(int columna) const { return static_cast<int>(doble(columna)); }
    /// In UTF-8, until the column is asked again; "" for a Null.
    [[nodiscard]] QByteArrayView texto(int columna);

private:
    static constexpr SQLULEN Bloque = 500;
    static constexpr size_t Ancho = 256; ///< characters of a text, with the closing zero

    struct Columna
    {
        std::vector<double> numeros;
        std::vector<SQLWCHAR> letras;
        std::array<SQLLEN, Bloque> bytes{};
        QByteArray utf8;
    };

    void liga(SQLUSMALLINT numero, Columna& columna);
    [[nodiscard]] const Columna& de(int columna) const { return m_columnas[static_cast<size_t>(columna)]; }
    [[nodiscard]] SQLLEN celda(int columna) const { return de(columna).bytes[m_fila]; }

    SentenciaOdbc m_sentencia;
    std::vector<Columna> m_columnas;
    SQLULEN m_leidas = 0;
    size_t m_fila = 0;
};

/// A shop on PostgreSQL as the bare program reads it.
class TiendaPostgreSql
{
public:
    using Filas = FilasOdbc;

    [[nodiscard]] static TiendaPostgreSql abre(const QString& /*fichero*/, const QString& dsn)
    {
        return TiendaPostgreSql{dsn.toStdString()};
    }

    [[nodiscard]] FilasOdbc lee(const QString& sql) const { return {m_conexion, sql}; }
    /// The column that keeps rows as they were inserted.
    [[nodiscard]] static QString orden() { return QStringLiteral("orden_"); }
    /// A column's day and moment as the reports file stores them.
    [[nodiscard]] static QString dia(const QString& columna) { return QStringLiteral("to_char(%1,'YYYY-MM-DD')").arg(columna); }
    [[nodiscard]] static QString momento(const QString& columna)
    {
        return QStringLiteral("to_char(%1,'YYYY-MM-DD HH24:MI:SS')").arg(columna);
    }

private:
    explicit TiendaPostgreSql(const std::string& dsn) : m_conexion{dsn} {}

    ConexionDesnuda m_conexion;
};

} // namespace kestrane::bench
