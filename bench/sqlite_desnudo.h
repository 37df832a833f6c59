#pragma once

#include <QString>

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

/// What a program without this project's layers would write: the C interface of SQLite with as little around it as handles need.
namespace kestrane::bench {

struct CierraBase
{
    void operator()(sqlite3* base) const { sqlite3_close(base); }
};

struct CierraSentencia
{
    void operator()(sqlite3_stmt* sentencia) const { sqlite3_finalize(sentencia); }
};

using BaseDesnuda = std::unique_ptr<sqlite3, CierraBase>;
using SentenciaDesnuda = std::unique_ptr<sqlite3_stmt, CierraSentencia>;

inline BaseDesnuda abreDesnuda(const QString& fichero)
{
    sqlite3* base = nullptr;
    if (sqlite3_open_v2(fichero.toUtf8().constData(), &base, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK)
        throw std::runtime_error{sqlite3_errmsg(base)};
    return BaseDesnuda{base};
}

inline void ejecutaDesnuda(sqlite3* base, const char* sql)
{
    if (sqlite3_exec(base, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error{sqlite3_errmsg(base)};
}

inline SentenciaDesnuda preparaDesnuda(sqlite3* base, const char* sql)
{
    sqlite3_stmt* sentencia = nullptr;
    if (sqlite3_prepare_v3(base, sql, -1, SQLITE_PREPARE_PERSISTENT, &sentencia, nullptr) != SQLITE_OK)
        throw std::runtime_error{sqlite3_errmsg(base)};
    return SentenciaDesnuda{sentencia};
}

inline QString textoDesnudo(sqlite3_stmt* sentencia, int columna)
{
    const auto* texto = sqlite3_column_text(sentencia, columna);
    return QString::fromUtf8(reinterpret_cast<const char*>(texto), sqlite3_column_bytes(sentencia, columna));
}

} // namespace kestrane::bench
