#include "instalacion/ddl.h"
#include "instalacion/obra.h"
#include "platform/database/error_motor.h"
#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/runtime/error_ejecucion.h"
#include "platform/runtime/fichero_destino.h"
#include "platform/runtime/motivo_sistema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <chrono>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace kestrane::instalacion {

namespace {

/// Built under another name in the same folder; the file that it replaces waits under a third one until it is confirmed. The names
/// are this process's own.
class ObraEnFichero final : public Obra
{
public:
    ObraEnFichero(const BaseEsquema& base, const QString& ruta)
        : m_base{base}
        , m_ruta{ruta}
        , m_provisional{ruta + u".nueva-"_s + QString::number(QCoreApplication::applicationPid())}
        , m_anterior{ruta + u".anterior-"_s + QString::number(QCoreApplication::applicationPid())}
    {
    }
    ~ObraEnFichero() override;
    ObraEnFichero(const ObraEnFichero&) = delete;
    ObraEnFichero& operator=(const ObraEnFichero&) = delete;

    [[nodiscard]] QString nombre() const override { return QDir::toNativeSeparators(m_ruta); }
    [[nodiscard]] bool ocupada() override { return QFileInfo::exists(m_ruta); }
    void construye(const Relleno& relleno) override;
    void termina() override;
    void confirma() noexcept override;

private:
    void haceCarpeta();
    void empiezaFichero();
    void cierraAnterior() const;
    void deshaz() noexcept;
    [[nodiscard]] bool aparta(std::error_code& error) const;
    [[nodiscard]] static bool mueve(const QString& desde, const QString& hasta, std::error_code& error) noexcept;
    [[noreturn]] void noSeEscribe(const QString& motivo) const;

    const BaseEsquema& m_base;
    QString m_ruta;
    QString m_provisional;
    QString m_anterior;
    QStringList m_carpetasNuevas; ///< made here, the innermost first: they go again when nothing stays in them
    bool m_apartada = false;      ///< the file that was there lies under m_anterior
    bool m_puesta = false;        ///< the new one lies under m_ruta
};

ObraEnFichero::~ObraEnFichero()
{
    deshaz();
}

void ObraEnFichero::deshaz() noexcept
{
    std::error_code error;
    if (m_apartada && mueve(m_anterior, m_ruta, error))
        QFile::remove(m_anterior); // a move onto another name of the same file leaves both
    else if (m_puesta && !m_apartada)
        QFile::remove(m_ruta);
    for (const QString& cola : {u""_s, u"-journal"_s})
        QFile::remove(m_provisional + cola);
    for (const QString& carpeta : m_carpetasNuevas)
        QDir{}.rmdir(carpeta); // only when it is empty
}

bool ObraEnFichero::mueve(const QString& desde, const QString& hasta, std::error_code& error) noexcept
{
    std::filesystem::rename(std::filesystem::path{desde.toStdU16String()}, std::filesystem::path{hasta.toStdU16String()}, error);
    return !error;
}

void ObraEnFichero::noSeEscribe(const QString& motivo) const
{
    throw ErrorEjecucion{
        ErrorEjecucion::ConexionImposible,
        u"No se puede escribir la base de datos \"%1\" (%2): elija con --datos una carpeta en la que el usuario pueda "
        u"escribir y que tenga sitio."_s.arg(nombre(), motivo)};
}

void ObraEnFichero::haceCarpeta()
{
    const QString carpeta = QFileInfo{m_ruta}.absolutePath();
    for (QString falta = carpeta; !QFileInfo::exists(falta); falta = QFileInfo{falta}.absolutePath())
        m_carpetasNuevas += falta;
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path{carpeta.toStdU16String()}, error);
    if (error)
        noSeEscribe(motivoDe(error));
}

/// The engine opens only files that are there; an empty one is an empty database.
void ObraEnFichero::empiezaFichero()
{
    QFile fichero{m_provisional};
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Truncate))
        noSeEscribe(motivoDe(fichero));
}

/// Nobody sees the file before it has its name, so it needs neither a journal nor the disk's word.
void ObraEnFichero::construye(const Relleno& relleno)
{
    if (const QString estorbo = estorboEn(m_ruta); !estorbo.isEmpty())
        noSeEscribe(estorbo);
    haceCarpeta();
    empiezaFichero();
    database::sqlite::SqliteMotor motor{{.fichero = m_provisional}};
    for (const QString& sentencia : {u"PRAGMA journal_mode = OFF"_s, u"PRAGMA synchronous = OFF"_s, u"BEGIN"_s})
        ejecuta(motor, sentencia);
    const QList<QString> sentencias = sentenciasDeCreacion(m_base, jet::Motor::Sqlite);
    for (const QString& sentencia : sentencias) {
        if (!creaIndice(sentencia))
            ejecuta(motor, sentencia);
    }
    if (relleno) {
        Carga carga{motor};
        relleno(carga);
    }
    for (const QString& sentencia : sentencias) {
        if (creaIndice(sentencia))
            ejecuta(motor, sentencia);
    }
    ejecuta(motor, u"COMMIT"_s);
}

void ObraEnFichero::termina()
{
    std::error_code error;
    if (ocupada()) {
        cierraAnterior();
        m_apartada = aparta(error);
    }
    m_puesta = !error && mueve(m_provisional, m_ruta, error);
    if (error)
        noSeEscribe(motivoDe(error));
}

/// A second name keeps the file under its first one until the new one takes that in one step; not every disk has second names.
bool ObraEnFichero::aparta(std::error_code& error) const
{
    std::error_code sinEnlaces;
    std::filesystem::create_hard_link(std::filesystem::path{m_ruta.toStdU16String()},
                                      std::filesystem::path{m_anterior.toStdU16String()}, sinEnlaces);
    return !sinEnlaces || mueve(m_ruta, m_anterior, error);
}

void ObraEnFichero::confirma() noexcept
{
    if (m_apartada)
        QFile::remove(m_anterior);
    m_apartada = m_puesta = false;
    m_carpetasNuevas.clear();
}

/// Brings what stands in the old file's log into it and takes the log away, which would be taken for the new file's. The engine
/// does so only when no other program has the database locked. What is no database has nothing to bring in.
void ObraEnFichero::cierraAnterior() const
{
    try {
        database::sqlite::SqliteMotor motor{{.fichero = m_ruta, .espera = std::chrono::milliseconds{0}}};
        for (const QString& sentencia : {u"PRAGMA journal_mode = DELETE"_s, u"BEGIN EXCLUSIVE"_s, u"ROLLBACK"_s})
            ejecuta(motor, sentencia);
    } catch (const database::ErrorMotor& error) {
        if (error.categoria() != database::ErrorMotor::Categoria::Danada)
            throw;
    }
    for (const QString& cola : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
        QFile::remove(m_ruta + cola);
}

} // namespace

std::unique_ptr<Obra> obraEnFichero(const BaseEsquema& base, const QString& ruta)
{
    return std::make_unique<ObraEnFichero>(base, sigueEnlaces(ruta));
}

} // namespace kestrane::instalacion
