#include "platform/database/odbc/odbc_sentencia.h"

#include <sqlucode.h>

namespace kestrane::database::odbc {

namespace {

ManejadorSentencia preparada(OdbcConexion& conexion, const QByteArray& sql)
{
    ManejadorSentencia sentencia = conexion.nuevaSentencia();
    if (sql.isEmpty())
        return sentencia;
    const QString texto = QString::fromUtf8(sql);
    conexion.exige(SQLPrepareW(sentencia.get(), textoAncho(texto), static_cast<SQLINTEGER>(texto.size())), sentencia.get());
    return sentencia;
}

} // namespace

OdbcSentencia::OdbcSentencia(std::shared_ptr<OdbcConexion> conexion, const QByteArray& sql,
                             std::span<const jet::TipoColumna> parametros, std::span<const jet::TipoColumna> resultado)
    : m_conexion{std::move(conexion)}
    , m_directa{parametros.empty() && resultado.empty() ? QString::fromUtf8(sql) : QString{}}
    , m_sentencia{preparada(*m_conexion, m_directa.isEmpty() ? sql : QByteArray{})}
    , m_parametros{*m_conexion, m_sentencia.get(), parametros}
    , m_resultado{resultado.begin(), resultado.end()}
{
}

void OdbcSentencia::ejecuta(std::span<const Ligado> parametros)
{
    m_parametros.pon(parametros);
    const SQLRETURN resultado = corre();
    if (resultado != SQL_NO_DATA)
        m_conexion->exige(resultado, m_sentencia.get());
    m_afectadas = 0;
    if (!m_resultado.empty()) {
        if (!m_columnas)
            m_columnas.emplace(*m_conexion, m_sentencia.get(), m_resultado);
        m_columnas->empieza();
        return;
    }
    SQLLEN filas = 0;
    if (resultado != SQL_NO_DATA && SQL_SUCCEEDED(SQLRowCount(m_sentencia.get(), &filas)) && filas > 0)
        m_afectadas = filas;
}

SQLRETURN OdbcSentencia::corre()
{
    if (m_directa.isEmpty())
        return SQLExecute(m_sentencia.get());
    return SQLExecDirectW(m_sentencia.get(), textoAncho(m_directa), static_cast<SQLINTEGER>(m_directa.size()));
}

bool OdbcSentencia::siguiente(AlmacenFilas& destino)
{
    return m_columnas && m_columnas->siguiente(destino);
}

void OdbcSentencia::reinicia() noexcept
{
    SQLFreeStmt(m_sentencia.get(), SQL_CLOSE);
    if (m_columnas)
        m_columnas->termina();
}

} // namespace kestrane::database::odbc
