#include "bench/filas_odbc.h"

namespace kestrane::bench {

namespace {

bool esNumero(SQLSMALLINT tipo)
{
    switch (tipo) {
    case SQL_INTEGER:
    case SQL_SMALLINT:
    case SQL_BIGINT:
    case SQL_DOUBLE:
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_NUMERIC:
        return true;
    default:
        return false;
    }
}

SQLPOINTER comoPuntero(SQLULEN numero)
{
    return reinterpret_cast<SQLPOINTER>(numero); // NOLINT(performance-no-int-to-ptr)
}

} // namespace

FilasOdbc::FilasOdbc(const ConexionDesnuda& conexion, const QString& sql) : m_sentencia{conexion, {}}
{
    SQLHSTMT const mango = m_sentencia.mango();
    m_sentencia.exige(SQLSetStmtAttrW(mango, SQL_ATTR_ROW_ARRAY_SIZE, comoPuntero(Bloque), SQL_IS_UINTEGER));
    m_sentencia.exige(SQLSetStmtAttrW(mango, SQL_ATTR_ROWS_FETCHED_PTR, &m_leidas, SQL_IS_POINTER));
    m_sentencia.exige(SQLExecDirectW(mango, reinterpret_cast<SQLWCHAR*>(const_cast<ushort*>(sql.utf16())), SQL_NTS));
    SQLSMALLINT cuantas = 0;
    m_sentencia.exige(SQLNumResultCols(mango, &cuantas));
    m_columnas.resize(static_cast<size_t>(cuantas));
    for (SQLUSMALLINT i = 0; i < static_cast<SQLUSMALLINT>(cuantas); ++i)
        liga(static_cast<SQLUSMALLINT>(i + 1), m_columnas[i]);
}

void FilasOdbc::liga(SQLUSMALLINT numero, Columna& columna)
{
    SQLSMALLINT tipo = 0;
    SQLULEN ancho = 0;
    SQLSMALLINT largo = 0;
    SQLSMALLINT decimales = 0;
    SQLSMALLINT nulos = 0;
    std::array<SQLWCHAR, 64> nombre{};
    m_sentencia.exige(
        SQLDescribeColW(m_sentencia.mango(), numero, nombre.data(), nombre.size(), &largo, &tipo, &ancho, &decimales, &nulos));
    if (esNumero(tipo)) {
        columna.numeros.resize(Bloque);
        m_sentencia.exige(
            SQLBindCol(m_sentencia.mango(), numero, SQL_C_DOUBLE, columna.numeros.data(), sizeof(double), columna.bytes.data()));
        return;
    }
    columna.letras.resize(Bloque * Ancho);
    m_sentencia.exige(SQLBindCol(m_sentencia.mango(), numero, SQL_C_WCHAR, columna.letras.data(), Ancho * sizeof(SQLWCHAR),
                                 columna.bytes.data()));
}

bool FilasOdbc::siguiente()
{
    if (++m_fila < m_leidas)
        return true;
    m_fila = 0;
    m_leidas = 0;
    const SQLRETURN estado = SQLFetch(m_sentencia.mango());
    if (estado == SQL_NO_DATA)
        return false;
    m_sentencia.exige(estado);
    return m_leidas > 0;
}

QByteArrayView FilasOdbc::texto(int columna)
{
    const SQLLEN bytes = celda(columna);
    if (bytes == SQL_NULL_DATA)
        return {"", qsizetype{0}};
    Columna& suya = m_columnas[static_cast<size_t>(columna)];
    const auto* letras = reinterpret_cast<const char16_t*>(suya.letras.data() + m_fila * Ancho);
    suya.utf8 = QStringView{letras, static_cast<qsizetype>(bytes) / 2}.toUtf8();
    return suya.utf8;
}

} // namespace kestrane::bench
