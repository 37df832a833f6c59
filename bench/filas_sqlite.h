#pragma once

#include "bench/sqlite_desnudo.h"

#include <QByteArray>
#include <QByteArrayView>

namespace kestrane::bench {

/// The rows of a query on an embedded shop, as the bare program of a cash report walks them.
class FilasSqlite
{
public:
    FilasSqlite(sqlite3* base, const QByteArray& sql) : m_sentencia{preparaDesnuda(base, sql.constData())} {}

    [[nodiscard]] bool siguiente() { return sqlite3_step(m_sentencia.get()) == SQLITE_ROW; }
    [[nodiscard]] bool nulo(int columna) const { return sqlite3_column_type(m_sentencia.get(), columna) == SQLITE_NULL; }
    /// 0 for a Null, as the next one.
    [[nodiscard]] double doble(int columna) const { return sqlite3_column_double(m_sentencia.get(), columna); }
    [[nodiscard]] int entero(int columna) const { return sqlite3_column_int(m_sentencia.get(), columna); }
    /// In UTF-8, until the next row; "" for a Null.
    [[nodiscard]] QByteArrayView texto(int columna) const
    {
        const auto* texto = sqlite3_column_text(m_sentencia.get(), columna);
        return {reinterpret_cast<const char*>(texto), sqlite3_column_bytes(m_sentencia.get(), columna)};
    }

private:
    SentenciaDesnuda m_sentencia;
};

/// An embedded shop as the bare program reads it.
class TiendaSqlite
{
public:
    using Filas = FilasSqlite;

    [[nodiscard]] static TiendaSqlite abre(const QString& fichero, const QString& /*dsn*/) { return TiendaSqlite{fichero}; }

    [[nodiscard]] FilasSqlite lee(const QString& sql) const { return {m_base.get(), sql.toUtf8()}; }
    /// The column that keeps rows as they were inserted.
    [[nodiscard]] static QString orden() { return QStringLiteral("rowid"); }
    /// A column's day and moment as the reports file stores them.
    [[nodiscard]] static QString dia(const QString& columna) { return columna; }
    [[nodiscard]] static QString momento(const QString& columna) { return columna; }

private:
    explicit TiendaSqlite(const QString& fichero) : m_base{abreDesnuda(fichero)} {}

    BaseDesnuda m_base;
};

} // namespace kestrane::bench
