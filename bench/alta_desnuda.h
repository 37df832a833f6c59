#pragma once

#include "bench/sqlite_desnudo.h"

#include <QByteArray>
#include <QByteArrayView>

namespace kestrane::bench {

/// One prepared INSERT, bound column by column. Columns that are not bound are Null.
class AltaDesnuda
{
public:
    AltaDesnuda(sqlite3* base, const char* sql) : m_sentencia{preparaDesnuda(base, sql)} {}

    void texto(int columna, QByteArrayView texto)
    {
        sqlite3_bind_text(m_sentencia.get(), columna, texto.isNull() ? "" : texto.data(), static_cast<int>(texto.size()),
                          SQLITE_TRANSIENT);
    }
    /// A text that holds until the row is written.
    void prestado(int columna, QByteArrayView texto)
    {
        sqlite3_bind_text(m_sentencia.get(), columna, texto.isNull() ? "" : texto.data(), static_cast<int>(texto.size()),
                          SQLITE_STATIC);
    }
    void numero(int columna, double numero) { sqlite3_bind_double(m_sentencia.get(), columna, numero); }
    void entero(int columna, int numero) { sqlite3_bind_int(m_sentencia.get(), columna, numero); }
    void nulo(int columna) { sqlite3_bind_null(m_sentencia.get(), columna); }

    void escribe()
    {
        if (sqlite3_step(m_sentencia.get()) != SQLITE_DONE)
            throw std::runtime_error{"insert"};
        sqlite3_reset(m_sentencia.get());
    }

private:
    SentenciaDesnuda m_sentencia;
};

} // namespace kestrane::bench
