#include "platform/database/odbc/odbc_columnas.h"

#include "platform/database/odbc/odbc_fecha.h"

#include <sqlucode.h>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

using jet::TipoColumna;

constexpr qsizetype BytesDelPrimerBloque = qsizetype{4} * 1024;
constexpr int FilasDelPrimerBloque = 16;
/// Characters of a text that has a place in the block; longer ones are read on their own.
constexpr SQLULEN CaracteresEnBloque = 255;

bool esTexto(TipoColumna tipo)
{
    return tipo == TipoColumna::Texto || tipo == TipoColumna::Memo;
}

struct Paso
{
    SQLSMALLINT tipoC;
    SQLLEN ancho;
};

Paso pasoDe(TipoColumna tipo)
{
    switch (tipo) {
    case TipoColumna::Entero32:
    case TipoColumna::Entero16:
    case TipoColumna::SiNo:
        return {SQL_C_SBIGINT, sizeof(SQLBIGINT)}; // the drivers cut what does not fit a smaller one
    case TipoColumna::Doble:
        return {SQL_C_DOUBLE, sizeof(double)};
    default:
        return {SQL_C_TYPE_TIMESTAMP, sizeof(SQL_TIMESTAMP_STRUCT)};
    }
}

constexpr qsizetype alineado(qsizetype bytes)
{
    return (bytes + 7) / 8 * 8;
}

template<class T>
T lee(const char* donde)
{
    T valor;
    std::memcpy(&valor, donde, sizeof valor);
    return valor;
}

template<class Entero>
Entero estrecha(SQLBIGINT numero)
{
    if (numero < std::numeric_limits<Entero>::min() || numero > std::numeric_limits<Entero>::max())
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    return static_cast<Entero>(numero);
}

} // namespace

OdbcColumnas::OdbcColumnas(OdbcConexion& conexion, SQLHSTMT sentencia, std::span<const TipoColumna> tipos)
    : m_conexion{conexion}
    , m_sentencia{sentencia}
{
    describe(tipos);
    SQLSetStmtAttrW(m_sentencia, SQL_ATTR_ROWS_FETCHED_PTR, &m_leidas, SQL_IS_POINTER);
}

void OdbcColumnas::describe(std::span<const TipoColumna> tipos)
{
    SQLSMALLINT columnas = 0;
    m_conexion.exige(SQLNumResultCols(m_sentencia, &columnas), m_sentencia);
    if (static_cast<size_t>(columnas) != tipos.size())
        throw ErrorMotor{ErrorMotor::Categoria::Sentencia, ErrorEjecucion::SentenciaRechazada,
                         u"El resultado tiene %1 columnas y se esperaban %2."_s.arg(columnas).arg(tipos.size())};
    m_maximoFilas = m_conexion.opciones().filasPorBloque;
    for (size_t i = 0; i < tipos.size(); ++i) {
        m_columnas.push_back(describeUna(static_cast<int>(i), tipos[i]));
        m_bytesPorFila += m_columnas.back().ancho + SQLLEN{sizeof(SQLLEN)};
    }
}

OdbcColumnas::Columna OdbcColumnas::describeUna(int indice, TipoColumna tipo)
{
    if (esTexto(tipo))
        return describeTexto(indice, tipo);
    // Columns as other programs make them: a time asked for as a date comes with today's, a bit as a number in its first byte
    // alone.
    if (tipo == TipoColumna::FechaHora && tipoDeDriver(indice) == SQL_TYPE_TIME)
        return {.tipo = tipo, .tipoC = SQL_C_TYPE_TIME, .ancho = sizeof(SQL_TIME_STRUCT)};
    if (tipo == TipoColumna::SiNo && tipoDeDriver(indice) == SQL_BIT)
        return {.tipo = tipo, .tipoC = SQL_C_BIT, .ancho = sizeof(SQLCHAR)};
    const Paso paso = pasoDe(tipo);
    return {.tipo = tipo, .tipoC = paso.tipoC, .ancho = paso.ancho};
}

SQLSMALLINT OdbcColumnas::tipoDeDriver(int indice) const
{
    std::array<SQLWCHAR, 128> nombre{};
    SQLSMALLINT tipo = 0;
    m_conexion.exige(SQLDescribeColW(m_sentencia, static_cast<SQLUSMALLINT>(indice + 1), nombre.data(), nombre.size(), nullptr,
                                     &tipo, nullptr, nullptr, nullptr),
                     m_sentencia);
    return tipo;
}

/// A result with texts that may be longer than their place is read row by row where the driver gives them only then.
OdbcColumnas::Columna OdbcColumnas::describeTexto(int indice, TipoColumna tipo)
{
    SQLULEN caracteres = 0;
    std::array<SQLWCHAR, 64> nombre{}; // one driver cannot do without a place for it
    m_conexion.exige(SQLDescribeColW(m_sentencia, static_cast<SQLUSMALLINT>(indice + 1), nombre.data(), nombre.size(), nullptr,
                                     nullptr, &caracteres, nullptr, nullptr),
                     m_sentencia);
    const bool cabe = caracteres > 0 && caracteres <= CaracteresEnBloque;
    if (!cabe && !m_conexion.leeLargosPorPosicion())
        m_maximoFilas = 1;
    const SQLULEN enBloque = cabe ? caracteres : CaracteresEnBloque;
    const qsizetype bytesPorCaracter = 4; // a pair of surrogates, or the longest form in UTF-8
    return {.tipo = tipo,
            .tipoC = m_conexion.tipoTexto(),
            .ancho = static_cast<SQLLEN>(alineado(static_cast<qsizetype>(enBloque) * bytesPorCaracter) + bytesDelFinal())};
}

int OdbcColumnas::filasQueCaben(qsizetype bytes) const
{
    return static_cast<int>(std::clamp<qsizetype>(bytes / std::max<qsizetype>(1, m_bytesPorFila), 1, m_maximoFilas));
}

void OdbcColumnas::liga(int filas)
{
    qsizetype posicion = 0;
    for (Columna& columna : m_columnas) {
        columna.posicion = posicion;
        posicion = alineado(posicion + columna.ancho * filas);
        columna.indicadores = posicion;
        posicion += qsizetype{sizeof(SQLLEN)} * filas;
    }
    m_bloque = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(posicion));
    m_estados.assign(static_cast<size_t>(filas), SQL_ROW_NOROW);
    m_filasDelBloque = filas;
    SQLSetStmtAttrW(m_sentencia, SQL_ATTR_ROW_ARRAY_SIZE, numeroComoPuntero(static_cast<quintptr>(filas)), SQL_IS_UINTEGER);
    SQLSetStmtAttrW(m_sentencia, SQL_ATTR_ROW_STATUS_PTR, m_estados.data(), SQL_IS_POINTER);
    for (size_t i = 0; i < m_columnas.size(); ++i) {
        const Columna& columna = m_columnas[i];
        m_conexion.exige(SQLBindCol(m_sentencia, static_cast<SQLUSMALLINT>(i + 1), columna.tipoC, m_bloque.get() + columna.posicion,
                                    columna.ancho, reinterpret_cast<SQLLEN*>(m_bloque.get() + columna.indicadores)),
                         m_sentencia);
    }
}

void OdbcColumnas::empieza()
{
    if (!m_bloque) {
        m_bloqueGrande = false;
        liga(std::min(FilasDelPrimerBloque, filasQueCaben(BytesDelPrimerBloque)));
    }
    m_leidas = m_fila = 0;
    m_agotado = false;
}

void OdbcColumnas::termina() noexcept
{
    if (m_bloqueGrande)
        m_bloque.reset();
    m_leidas = m_fila = 0;
    m_agotado = true;
    if (m_largo.capacity() > static_cast<size_t>(BytesDelPrimerBloque))
        m_largo = {};
}

bool OdbcColumnas::siguiente(AlmacenFilas& destino)
{
    if (m_fila == m_leidas && !leeBloque())
        return false;
    copiaFila(destino);
    return true;
}

bool OdbcColumnas::leeBloque()
{
    if (m_agotado)
        return false;
    if (m_leidas > 0 && !m_bloqueGrande) {
        m_bloqueGrande = true;
        liga(filasQueCaben(m_conexion.opciones().bytesPorBloque));
    }
    m_leidas = m_fila = 0;
    const SQLRETURN resultado = SQLFetch(m_sentencia);
    if (resultado != SQL_NO_DATA)
        exigeFilasBuenas(resultado);
    m_agotado = resultado == SQL_NO_DATA || m_leidas < static_cast<SQLULEN>(m_filasDelBloque);
    return m_leidas > 0;
}

/// A text that was cut is no failure: it is read again. A number that does not fit its type is.
void OdbcColumnas::exigeFilasBuenas(SQLRETURN resultado)
{
    m_conexion.exige(resultado, m_sentencia);
    const auto fin = m_estados.begin() + static_cast<std::ptrdiff_t>(std::min<SQLULEN>(m_leidas, m_estados.size()));
    if (resultado == SQL_SUCCESS_WITH_INFO && std::find(m_estados.begin(), fin, SQL_ROW_ERROR) != fin)
        m_conexion.lanza(m_sentencia);
}

void OdbcColumnas::copiaFila(AlmacenFilas& destino)
{
    destino.empiezaFila();
    try {
        for (int i = 0; i < static_cast<int>(m_columnas.size()); ++i)
            copiaCelda(destino, i);
    } catch (...) {
        destino.abandonaFila();
        throw;
    }
    destino.terminaFila();
    ++m_fila;
}

void OdbcColumnas::copiaCelda(AlmacenFilas& destino, int indice)
{
    const Columna& columna = m_columnas[static_cast<size_t>(indice)];
    const auto fila = static_cast<qsizetype>(m_fila);
    const auto indicador = lee<SQLLEN>(m_bloque.get() + columna.indicadores + fila * qsizetype{sizeof(SQLLEN)});
    const char* const celda = m_bloque.get() + columna.posicion + fila * columna.ancho;
    if (indicador == SQL_NULL_DATA)
        return destino.ponNulo();
    switch (columna.tipo) {
    case TipoColumna::Entero32:
        return destino.ponEntero32(estrecha<qint32>(lee<SQLBIGINT>(celda)));
    case TipoColumna::Entero16:
        return destino.ponEntero16(estrecha<qint16>(lee<SQLBIGINT>(celda)));
    case TipoColumna::SiNo:
        return destino.ponLogico(columna.tipoC == SQL_C_BIT ? *celda != 0 : lee<SQLBIGINT>(celda) != 0);
    case TipoColumna::Doble:
        return destino.ponDoble(lee<double>(celda));
    case TipoColumna::FechaHora:
        return copiaFecha(destino, indice, celda);
    case TipoColumna::Memo:
    case TipoColumna::Texto:
        break;
    }
    copiaTexto(destino, indice, indicador);
}

void OdbcColumnas::copiaFecha(AlmacenFilas& destino, int indice, const char* celda)
{
    if (m_columnas[static_cast<size_t>(indice)].tipoC == SQL_C_TYPE_TIME) {
        const auto hora = lee<SQL_TIME_STRUCT>(celda);
        if (hora.hour > 23)
            fechaIlegible(indice, u"la hora %1:%2"_s.arg(hora.hour).arg(hora.minute));
        return destino.ponFecha(Fecha::deSerie(0, (hora.hour * 60 + hora.minute) * 60 + hora.second));
    }
    const auto marca = lee<SQL_TIMESTAMP_STRUCT>(celda);
    const auto fecha = fechaDe(marca);
    if (!fecha)
        fechaIlegible(indice, u"el día %1/%2/%3"_s.arg(marca.day).arg(marca.month).arg(marca.year));
    destino.ponFecha(*fecha);
}

void OdbcColumnas::fechaIlegible(int indice, const QString& leida) const
{
    throw ErrorMotor{
        ErrorMotor::Categoria::Sentencia, ErrorEjecucion::SentenciaRechazada,
        u"La columna \"%1\" de fechas contiene %2, que no se puede leer. Corrija esa fila."_s.arg(nombre(indice), leida)};
}

/// For messages; "" when the driver does not tell it.
QString OdbcColumnas::nombre(int indice) const
{
    std::array<SQLWCHAR, 128> nombre{};
    SQLDescribeColW(m_sentencia, static_cast<SQLUSMALLINT>(indice + 1), nombre.data(), nombre.size(), nullptr, nullptr, nullptr,
                    nullptr, nullptr);
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(nombre.data()));
}

void OdbcColumnas::copiaTexto(AlmacenFilas& destino, int indice, SQLLEN bytes)
{
    const Columna& columna = m_columnas[static_cast<size_t>(indice)];
    if (bytes == SQL_NO_TOTAL || bytes > columna.ancho - bytesDelFinal())
        return leeTextoLargo(destino, indice, bytes);
    ponTexto(destino, m_bloque.get() + columna.posicion + static_cast<qsizetype>(m_fila) * columna.ancho, bytes);
}

/// The drivers tell the length beforehand, so that one call does; without it the text comes piece by piece.
void OdbcColumnas::leeTextoLargo(AlmacenFilas& destino, int indice, SQLLEN bytes)
{
    if (m_filasDelBloque > 1)
        m_conexion.exige(SQLSetPos(m_sentencia, m_fila + 1, SQL_POSITION, SQL_LOCK_NO_CHANGE), m_sentencia);
    SQLLEN leidos = 0;
    SQLLEN sitio = bytes == SQL_NO_TOTAL ? SQLLEN{BytesDelPrimerBloque} : bytes + bytesDelFinal();
    while (true) {
        m_largo.resize(static_cast<size_t>(leidos + sitio));
        const SQLLEN quedaban = leeTrozo(indice, m_largo.data() + leidos, sitio);
        if (quedaban != SQL_NO_TOTAL && quedaban <= sitio - bytesDelFinal()) {
            ponTexto(destino, m_largo.data(), leidos + quedaban);
            return;
        }
        leidos += largoDeTrozo(m_largo.data() + leidos, sitio);
        sitio = quedaban == SQL_NO_TOTAL ? 2 * sitio : quedaban;
    }
}

/// Returns the bytes that were there before the call, or SQL_NO_TOTAL.
SQLLEN OdbcColumnas::leeTrozo(int indice, char* donde, SQLLEN sitio)
{
    SQLLEN quedaban = 0;
    m_conexion.exige(
        SQLGetData(m_sentencia, static_cast<SQLUSMALLINT>(indice + 1), m_conexion.tipoTexto(), donde, sitio, &quedaban),
        m_sentencia);
    return quedaban;
}

/// A driver may end a piece before its place is full, so as not to cut a character.
SQLLEN OdbcColumnas::largoDeTrozo(const char* trozo, SQLLEN sitio) const
{
    if (!m_conexion.enUtf8())
        return (sitio / SQLLEN{sizeof(SQLWCHAR)} - 1) * SQLLEN{sizeof(SQLWCHAR)};
    return static_cast<SQLLEN>(std::find(trozo, trozo + sitio, '\0') - trozo);
}

void OdbcColumnas::ponTexto(AlmacenFilas& destino, const char* texto, SQLLEN bytes) const
{
    if (m_conexion.enUtf8())
        destino.ponTextoUtf8(texto, bytes);
    else
        destino.ponTexto(QStringView{reinterpret_cast<const char16_t*>(texto), bytes / qsizetype{sizeof(char16_t)}});
}

} // namespace kestrane::database::odbc
