#include "bench/odbc_desnudo.h"

#include <array>

namespace kestrane::bench {

namespace {

[[noreturn]] void lanza(SQLSMALLINT clase, SQLHANDLE mango)
{
    std::array<SQLCHAR, 6> estado{};
    std::array<SQLCHAR, 512> texto{};
    SQLGetDiagRec(clase, mango, 1, estado.data(), nullptr, texto.data(), texto.size(), nullptr);
    throw std::runtime_error{reinterpret_cast<const char*>(texto.data())};
}

SQLWCHAR* letras(const QString& sql)
{
    return const_cast<SQLWCHAR*>(sql.utf16());
}

} // namespace

ConexionDesnuda::ConexionDesnuda(const std::string& dsn)
{
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &m_entorno);
    SQLSetEnvAttr(m_entorno, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, m_entorno, &m_conexion);
    std::string cadena = "DSN=" + dsn;
    if (!SQL_SUCCEEDED(SQLDriverConnect(m_conexion, nullptr, reinterpret_cast<SQLCHAR*>(cadena.data()), SQL_NTS, nullptr, 0,
                                        nullptr, SQL_DRIVER_NOPROMPT)))
        lanza(SQL_HANDLE_DBC, m_conexion);
}

ConexionDesnuda::~ConexionDesnuda()
{
    SQLDisconnect(m_conexion);
    SQLFreeHandle(SQL_HANDLE_DBC, m_conexion);
    SQLFreeHandle(SQL_HANDLE_ENV, m_entorno);
}

void ConexionDesnuda::ejecuta(const QString& sql) const
{
    const SentenciaOdbc sentencia{*this, {}};
    const SQLRETURN estado = SQLExecDirectW(sentencia.mango(), letras(sql), SQL_NTS);
    if (estado != SQL_NO_DATA)
        sentencia.exige(estado);
}

SentenciaOdbc::SentenciaOdbc(const ConexionDesnuda& conexion, const QString& sql)
{
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, conexion.mango(), &m_sentencia)))
        lanza(SQL_HANDLE_DBC, conexion.mango());
    if (!sql.isEmpty())
        exige(SQLPrepareW(m_sentencia, letras(sql), SQL_NTS));
}

SentenciaOdbc::~SentenciaOdbc()
{
    SQLFreeHandle(SQL_HANDLE_STMT, m_sentencia);
}

void SentenciaOdbc::exige(SQLRETURN estado) const
{
    if (!SQL_SUCCEEDED(estado))
        lanza(SQL_HANDLE_STMT, m_sentencia);
}

} // namespace kestrane::bench
