#include "platform/database/sqlite/sqlite_motor.h"

#include "platform/database/sentencias_fila.h"
#include "platform/database/sqlite/sqlite_errores.h"
#include "platform/database/sqlite/sqlite_funciones.h"
#include "platform/database/sqlite/sqlite_sentencia.h"

#include <QFileInfo>

namespace kestrane::database::sqlite {

/// A prepared INSERT, kept because rows of one table come by the thousand.
struct SqliteMotor::Insercion
{
    QByteArray sql;
    Preparada sentencia;
    Ligaduras ligaduras;
};

SqliteMotor::SqliteMotor(OpcionesSqlite opciones) : m_opciones{std::move(opciones)}, m_catalogo{*this}
{
    abre();
    configura();
    m_abierta = true; // NOLINT(cppcoreguidelines-prefer-member-initializer): the errors so far are those of opening
}

SqliteMotor::~SqliteMotor() = default;

void SqliteMotor::abre()
{
    if (!QFileInfo{m_opciones.fichero}.isFile())
        throw ficheroQueFalta(m_opciones.fichero);
    sqlite3* base = nullptr;
    const int codigo = sqlite3_open_v2(m_opciones.fichero.toUtf8().constData(), &base,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    m_base.reset(base);
    exige(codigo);
}

void SqliteMotor::configura()
{
    ponEspera(m_opciones.espera);
    registraFunciones(base(), m_opciones.regional);
    // The first read tells whether the file is a database at all and whether it is locked.
    ejecuta("select count(*) from sqlite_master");
    if (m_opciones.uso != Uso::Listados || sqlite3_db_readonly(base(), "main") != 0)
        return;
    ejecuta("pragma journal_mode = wal");
    ejecuta("pragma synchronous = off");
}

void SqliteMotor::ponEspera(std::chrono::milliseconds espera)
{
    exige(sqlite3_busy_timeout(base(), static_cast<int>(espera.count())));
}

ErrorMotor SqliteMotor::error(int codigo)
{
    const auto numero = m_abierta ? ErrorEjecucion::SentenciaRechazada : ErrorEjecucion::ConexionImposible;
    ErrorMotor error = errorDe(base(), codigo, m_opciones.fichero, numero);
    m_perdida = m_perdida || error.categoria() == ErrorMotor::Categoria::ConexionPerdida;
    return error;
}

void SqliteMotor::exige(int codigo)
{
    if (codigo != SQLITE_OK && codigo != SQLITE_DONE && codigo != SQLITE_ROW)
        throw error(codigo);
}

void SqliteMotor::ejecuta(const char* sql)
{
    exige(sqlite3_exec(base(), sql, nullptr, nullptr, nullptr));
}

Preparada SqliteMotor::preparada(const QByteArray& sql)
{
    sqlite3_stmt* sentencia = nullptr;
    const int codigo = sqlite3_prepare_v3(base(), sql.constData(), static_cast<int>(sql.size()) + 1, SQLITE_PREPARE_PERSISTENT,
                                          &sentencia, nullptr);
    Preparada preparada{sentencia};
    exige(codigo);
    return preparada;
}

std::unique_ptr<SentenciaMotor> SqliteMotor::prepara(const QByteArray& sql, std::span<const jet::TipoColumna>,
                                                     std::span<const jet::TipoColumna> resultado)
{
    return std::make_unique<SqliteSentencia>(*this, preparada(sql), resultado);
}

SqliteMotor::Insercion& SqliteMotor::insercion(const jet::Tabla& tabla, std::span<const int> columnas)
{
    QByteArray sql = sqlInsercion(clase(), tabla, columnas);
    if (!m_insercion || m_insercion->sql != sql) {
        Preparada sentencia = preparada(sql);
        sqlite3_stmt* const puntero = sentencia.get();
        m_insercion = std::make_unique<Insercion>(Insercion{std::move(sql), std::move(sentencia), Ligaduras{puntero}});
    }
    return *m_insercion;
}

void SqliteMotor::insertaFilas(const jet::Tabla& tabla, std::span<const int> columnas, AlmacenFilas& filas)
{
    Insercion& preparada = insercion(tabla, columnas);
    ejecuta("begin immediate");
    try {
        insertaTodas(preparada, filas);
        ejecuta("commit");
    } catch (...) {
        sqlite3_exec(base(), "rollback", nullptr, nullptr, nullptr);
        throw;
    }
}

void SqliteMotor::insertaTodas(Insercion& insercion, AlmacenFilas& filas)
{
    sqlite3_stmt* const sentencia = insercion.sentencia.get();
    for (filas.alPrincipio(); filas.siguiente();) {
        insercion.ligaduras.liga(filas);
        const int codigo = sqlite3_step(sentencia);
        sqlite3_reset(sentencia);
        exige(codigo);
    }
}

void SqliteMotor::consulta(const char* sql, const QString& parametro, const std::function<void(sqlite3_stmt*)>& porFila)
{
    const Preparada sentencia = preparada(QByteArray{sql});
    const QByteArray texto = parametro.toUtf8();
    if (sqlite3_bind_parameter_count(sentencia.get()) > 0)
        exige(sqlite3_bind_text(sentencia.get(), 1, texto.constData(), static_cast<int>(texto.size()), SQLITE_STATIC));
    int codigo = SQLITE_ROW;
    while ((codigo = sqlite3_step(sentencia.get())) == SQLITE_ROW)
        porFila(sentencia.get());
    exige(codigo);
}

QString SqliteMotor::texto(sqlite3_stmt* fila, int columna)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(fila, columna)),
                             sqlite3_column_bytes(fila, columna));
}

} // namespace kestrane::database::sqlite
