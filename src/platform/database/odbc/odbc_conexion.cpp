#include "platform/database/odbc/odbc_conexion.h"

#include <sqlucode.h>

#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

/// What a data source may leave as its driver has it by default but this program relies on. Each driver passes over the words of
/// the other. PostgreSQL: statements are prepared by the server, results come whole, line ends are left alone, a number is no
/// character. MariaDB: texts as UTF-8; 2 makes an update count the rows that it found.
constexpr QLatin1StringView Controladores =
    "UseServerSidePrepare=1;UseDeclareFetch=0;UpdatableCursors=0;LFConversion=0;MaxVarcharSize=255;TextAsLongVarchar=1;"
    "UnknownSizes=0;BoolsAsChar=0;TrueIsMinus1=0;CHARSET=utf8mb4;OPTION=2;"_L1;

/// A value between braces may hold any mark.
QString entreLlaves(QString valor)
{
    return u'{' + valor.replace(u'}', u"}}"_s) + u'}';
}

/// A server that goes silent must not hold the program for ever. PostgreSQL's driver knows no bound for an answer, but asks by
/// itself whether the machine is there; MariaDB's knows one.
QString vigilancia(const OpcionesOdbc& opciones)
{
    constexpr int SegundosEntreSondeos = 10;
    return u"KeepaliveTime=%1;KeepaliveInterval=%2;READ_TIMEOUT=%3;WRITE_TIMEOUT=%3;"_s.arg(opciones.sondeo.count())
        .arg(SegundosEntreSondeos)
        .arg(opciones.esperaRespuesta.count());
}

QString cadenaDe(const QString& dsn, const QString& usuario, const QString& clave, const OpcionesOdbc& opciones)
{
    QString cadena = u"DSN="_s + dsn + u';';
    if (!usuario.isEmpty())
        cadena += u"UID="_s + usuario + u';'; // the PostgreSQL driver takes braces for a part of the name
    if (!clave.isEmpty())
        cadena += u"PWD="_s + entreLlaves(clave) + u';';
    return cadena + Controladores + vigilancia(opciones);
}

} // namespace

OdbcConexion::OdbcConexion(const QString& dsn, const QString& usuario, const QString& clave, const OpcionesOdbc& opciones)
    : m_origen{dsn, usuario}
    , m_opciones{opciones}
    , m_entorno{entornoOdbc3()}
    , m_conexion{m_entorno.get()}
{
    abre(cadenaDe(dsn, usuario, clave, opciones));
    try {
        reconoceServidor();
        preparaSesion();
        eligeForma();
    } catch (...) {
        SQLDisconnect(m_conexion.get());
        throw;
    }
}

OdbcConexion::~OdbcConexion()
{
    SQLDisconnect(m_conexion.get());
}

void OdbcConexion::abre(const QString& cadena)
{
    SQLSetConnectAttrW(m_conexion.get(), SQL_ATTR_LOGIN_TIMEOUT,
                       numeroComoPuntero(static_cast<quintptr>(m_opciones.esperaConexion.count())), SQL_IS_UINTEGER);
    const SQLRETURN resultado =
        SQLDriverConnectW(m_conexion.get(), nullptr, textoAncho(cadena), static_cast<SQLSMALLINT>(cadena.size()), nullptr, 0,
                          nullptr, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(resultado))
        lanzaAlAbrir();
}

void OdbcConexion::reconoceServidor()
{
    std::array<SQLWCHAR, 128> nombre{};
    SQLSMALLINT bytes = 0;
    SQLGetInfoW(m_conexion.get(), SQL_DBMS_NAME, nombre.data(), sizeof nombre, &bytes);
    const QString servidor = QString::fromUtf16(reinterpret_cast<const char16_t*>(nombre.data()));
    if (servidor.contains("PostgreSQL"_L1, Qt::CaseInsensitive))
        m_motor = jet::Motor::PostgreSql;
    else if (servidor.contains("MariaDB"_L1, Qt::CaseInsensitive))
        m_motor = jet::Motor::MariaDb;
    else
        throw ErrorMotor{
            ErrorMotor::Categoria::Sentencia, ErrorEjecucion::ConexionImposible,
            u"El origen de datos \"%1\" lleva a un servidor %2: use PostgreSQL o MariaDB."_s.arg(m_origen.dsn, servidor)};
}

void OdbcConexion::preparaSesion()
{
    if (m_motor == jet::Motor::PostgreSql)
        // Compiling a statement costs more than the look-ups that it would speed up.
        ejecuta(u"SET standard_conforming_strings = on; SET jit = off"_s);
    else
        // Without the last of these modes an UPDATE would reckon with what it has just assigned.
        ejecuta(u"SET SESSION sql_mode = 'ANSI_QUOTES,NO_BACKSLASH_ESCAPES,STRICT_ALL_TABLES,NO_ENGINE_SUBSTITUTION,"
                u"SIMULTANEOUS_ASSIGNMENT', "
                u"collation_connection = utf8mb4_uca1400_spanish_nopad_as_ci"_s);
    ponEspera(m_opciones.espera);
}

/// To PostgreSQL 0 means to wait for ever; MariaDB counts whole seconds, of which 0 are no wait.
void OdbcConexion::ponEspera(std::chrono::milliseconds espera)
{
    if (m_motor == jet::Motor::PostgreSql)
        return ejecuta(u"SET lock_timeout = %1"_s.arg(std::max<qint64>(1, espera.count())));
    ejecuta(u"SET SESSION innodb_lock_wait_timeout = %1, lock_wait_timeout = %1"_s.arg((espera.count() + 999) / 1000));
}

ManejadorSentencia OdbcConexion::nuevaSentencia()
{
    ManejadorSentencia sentencia = ManejadorSentencia::intenta(m_conexion.get());
    if (!sentencia.get())
        lanzaDe(SQL_HANDLE_DBC, m_conexion.get());
    return sentencia;
}

bool OdbcConexion::pasaUtf8()
{
    static constexpr std::string_view Muestra = "ñ€😀";
    const ManejadorSentencia sentencia = nuevaSentencia();
    const QString sql = u"SELECT 'ñ€😀'"_s;
    std::array<char, 64> leida{};
    SQLLEN bytes = 0;
    SQLBindCol(sentencia.get(), 1, SQL_C_CHAR, leida.data(), leida.size(), &bytes);
    return SQL_SUCCEEDED(SQLExecDirectW(sentencia.get(), textoAncho(sql), static_cast<SQLINTEGER>(sql.size()))) &&
           SQL_SUCCEEDED(SQLFetch(sentencia.get())) && std::string_view{leida.data()} == Muestra;
}

/// MariaDB's driver has been told the character set, and its conversions to UTF-16 fail on long texts.
void OdbcConexion::eligeForma()
{
    const bool pasa = pasaUtf8();
    m_enUtf8 = pasa && (m_motor == jet::Motor::MariaDb || m_opciones.forma == FormaTexto::SegunControlador);
    if (!pasa && m_motor == jet::Motor::MariaDb)
        throw ErrorMotor{ErrorMotor::Categoria::Sentencia, ErrorEjecucion::ConexionImposible,
                         u"El controlador del origen de datos \"%1\" no entrega los textos en UTF-8: quite del origen de datos el "
                         u"juego de caracteres o instale el controlador MariaDB Unicode."_s.arg(m_origen.dsn)};
}

void OdbcConexion::ejecuta(const QString& sql)
{
    const ManejadorSentencia sentencia = nuevaSentencia();
    const SQLRETURN resultado = SQLExecDirectW(sentencia.get(), textoAncho(sql), static_cast<SQLINTEGER>(sql.size()));
    if (resultado != SQL_NO_DATA)
        exige(resultado, sentencia.get());
}

void OdbcConexion::lanzaDe(SQLSMALLINT clase, SQLHANDLE manejador)
{
    const auto hallados = diagnosticos(clase, manejador);
    const ErrorMotor error = errorAlEjecutar(m_motor, hallados, m_origen, enlace());
    m_perdida = m_perdida || error.categoria() == ErrorMotor::Categoria::ConexionPerdida;
    throw ErrorMotor{error};
}

/// Not every loss has a state of its own; the driver knows it without asking the server.
Enlace OdbcConexion::enlace() const
{
    SQLUINTEGER muerto = SQL_CD_FALSE;
    const SQLRETURN resultado = SQLGetConnectAttrW(m_conexion.get(), SQL_ATTR_CONNECTION_DEAD, &muerto, SQL_IS_UINTEGER, nullptr);
    return SQL_SUCCEEDED(resultado) && muerto == SQL_CD_TRUE ? Enlace::Muerto : Enlace::Vivo;
}

void OdbcConexion::lanzaAlAbrir()
{
    throw errorAlAbrir(diagnosticos(SQL_HANDLE_DBC, m_conexion.get()), m_origen);
}

Transaccion::Transaccion(OdbcConexion& conexion) : m_conexion{conexion}
{
    m_conexion.ejecuta(u"START TRANSACTION"_s);
}

Transaccion::~Transaccion()
{
    if (m_terminada)
        return;
    try {
        m_conexion.ejecuta(u"ROLLBACK"_s);
    } catch (const ErrorEjecucion&) {
        m_conexion.daPorPerdida(); // the server takes back what was not committed when the connection goes
    }
}

void Transaccion::confirma()
{
    m_terminada = true;
    m_conexion.ejecuta(u"COMMIT"_s);
}

} // namespace kestrane::database::odbc
