#include "platform/database/odbc/altas_mariadb.h"

#include "platform/database/odbc/celdas.h"
#include "platform/database/odbc/odbc_fecha.h"
#include "platform/jet/sql_identifier.h"

#include <sqlucode.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

using jet::TipoColumna;

QString entreComillas(const QString& nombre)
{
    return QString::fromUtf8(jet::SqlIdentifier{nombre}.entre('`'));
}

QString sqlDe(const QString& tabla, const std::vector<jet::Columna>& columnas)
{
    QStringList nombres;
    QStringList marcas;
    for (const jet::Columna& columna : columnas) {
        nombres += entreComillas(columna.nombre);
        marcas += columna.esVerdadDelMotor ? u"? <> 0"_s : u"?"_s;
    }
    return u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(entreComillas(tabla), nombres.join(u", "_s), marcas.join(u", "_s));
}

struct Paso
{
    SQLSMALLINT tipoC;
    SQLSMALLINT tipoSql;
    qsizetype ancho; ///< bytes, 0 for texts
};

Paso pasoDe(TipoColumna tipo)
{
    switch (tipo) {
    case TipoColumna::Entero32:
        return {SQL_C_SLONG, SQL_INTEGER, sizeof(SQLINTEGER)};
    case TipoColumna::Entero16:
    case TipoColumna::SiNo:
        return {SQL_C_SSHORT, SQL_SMALLINT, sizeof(SQLSMALLINT)};
    case TipoColumna::Doble:
        return {SQL_C_DOUBLE, SQL_DOUBLE, sizeof(double)};
    case TipoColumna::FechaHora:
        return {SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, sizeof(SQL_TIMESTAMP_STRUCT)};
    case TipoColumna::Memo:
    case TipoColumna::Texto:
        break;
    }
    return {SQL_C_CHAR, SQL_VARCHAR, 0};
}

template<class T>
void escribe(char* donde, T valor)
{
    std::memcpy(donde, &valor, sizeof valor);
}

} // namespace

AltasMariaDb::AltasMariaDb(std::shared_ptr<OdbcConexion> conexion, const QString& tabla, std::vector<jet::Columna> columnas)
    : m_conexion{std::move(conexion)}
    , m_sentencia{m_conexion->nuevaSentencia()}
    , m_listas(columnas.size())
{
    for (size_t i = 0; i < columnas.size(); ++i) {
        m_listas[i].tipo = columnas[i].tipo;
        m_listas[i].ancho = pasoDe(columnas[i].tipo).ancho;
    }
    const QString sql = sqlDe(tabla, columnas);
    m_conexion->exige(SQLPrepareW(m_sentencia.get(), textoAncho(sql), static_cast<SQLINTEGER>(sql.size())), m_sentencia.get());
}

void AltasMariaDb::inserta(AlmacenFilas& filas)
{
    if (filas.filas() == 0)
        return;
    mideAnchos(filas);
    const qsizetype porEnvio = std::min(filasPorEnvio(), filas.filas());
    reserva(porEnvio);
    Transaccion transaccion{*m_conexion};
    qsizetype reunidas = 0;
    filas.alPrincipio();
    while (filas.siguiente()) {
        for (size_t i = 0; i < m_listas.size(); ++i)
            pon(m_listas[i], static_cast<size_t>(reunidas), filas.celda(static_cast<int>(i)));
        if (++reunidas < porEnvio)
            continue;
        envia(reunidas);
        reunidas = 0;
    }
    if (reunidas > 0)
        envia(reunidas);
    transaccion.confirma();
}

/// A text's place is as wide as the longest of these rows.
void AltasMariaDb::mideAnchos(AlmacenFilas& filas)
{
    for (Lista& lista : m_listas) {
        if (pasoDe(lista.tipo).ancho == 0)
            lista.ancho = 8;
    }
    filas.alPrincipio();
    while (filas.siguiente()) {
        for (size_t i = 0; i < m_listas.size(); ++i) {
            const Celda celda = filas.celda(static_cast<int>(i));
            if (pasoDe(m_listas[i].tipo).ancho == 0)
                m_listas[i].ancho = std::max(m_listas[i].ancho, maximoUtf8De(celda));
        }
    }
}

qsizetype AltasMariaDb::filasPorEnvio() const
{
    qsizetype bytes = 0;
    for (const Lista& lista : m_listas)
        bytes += lista.ancho;
    return std::max<qsizetype>(1, m_conexion->opciones().bytesPorEnvio / std::max<qsizetype>(1, bytes));
}

void AltasMariaDb::reserva(qsizetype filas)
{
    for (size_t i = 0; i < m_listas.size(); ++i) {
        m_listas[i].lugares.resize(static_cast<size_t>(m_listas[i].ancho * filas));
        m_listas[i].indicadores.resize(static_cast<size_t>(filas));
        liga(i);
    }
}

void AltasMariaDb::liga(size_t indice)
{
    Lista& lista = m_listas[indice];
    const Paso paso = pasoDe(lista.tipo);
    m_conexion->exige(SQLBindParameter(m_sentencia.get(), static_cast<SQLUSMALLINT>(indice + 1), SQL_PARAM_INPUT, paso.tipoC,
                                       paso.tipoSql, static_cast<SQLULEN>(lista.ancho), 0, lista.lugares.data(), lista.ancho,
                                       lista.indicadores.data()),
                      m_sentencia.get());
}

void AltasMariaDb::pon(Lista& lista, size_t fila, const Celda& celda)
{
    char* const lugar = lista.lugares.data() + fila * static_cast<size_t>(lista.ancho);
    lista.indicadores[fila] = celda.tipo == TipoCelda::Nulo ? SQL_NULL_DATA : lista.ancho;
    if (celda.tipo == TipoCelda::Nulo)
        return;
    switch (lista.tipo) {
    case TipoColumna::Entero32:
        return escribe(lugar, static_cast<SQLINTEGER>(numeroDe(celda)));
    case TipoColumna::Entero16:
    case TipoColumna::SiNo:
        return escribe(lugar, static_cast<SQLSMALLINT>(numeroDe(celda)));
    case TipoColumna::Doble:
        return escribe(lugar, numeroDe(celda));
    case TipoColumna::FechaHora:
        return escribe(lugar, marcaDeTiempo(celda.fecha()));
    case TipoColumna::Memo:
    case TipoColumna::Texto:
        break;
    }
    lista.indicadores[fila] = escribeUtf8(celda, lugar);
}

void AltasMariaDb::envia(qsizetype filas)
{
    SQLSetStmtAttrW(m_sentencia.get(), SQL_ATTR_PARAMSET_SIZE, numeroComoPuntero(static_cast<quintptr>(filas)), SQL_IS_UINTEGER);
    m_conexion->exige(SQLExecute(m_sentencia.get()), m_sentencia.get());
    SQLFreeStmt(m_sentencia.get(), SQL_CLOSE);
}

} // namespace kestrane::database::odbc
