#include "instalacion/ddl.h"
#include "instalacion/obra.h"
#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace kestrane::instalacion {

namespace {

/// Built under another name in the same folder.
class ObraEnFichero final : public Obra
{
public:
    ObraEnFichero(const BaseEsquema& base, const QString& ruta) : m_base{base}, m_ruta{ruta}, m_provisional{ruta + u".nueva"_s} {}
    ~ObraEnFichero() override;
    ObraEnFichero(const ObraEnFichero&) = delete;
    ObraEnFichero& operator=(const ObraEnFichero&) = delete;

    [[nodiscard]] QString nombre() const override { return QDir::toNativeSeparators(m_ruta); }
    [[nodiscard]] bool ocupada() override { return QFileInfo::exists(m_ruta); }
    void construye(const Relleno& relleno) override;
    void termina() override;

private:
    void haceCarpeta();
    void empiezaFichero();
    void quitaRestos() const;
    [[noreturn]] void noSeEscribe(const QString& motivo) const;

    const BaseEsquema& m_base;
    QString m_ruta;
    QString m_provisional;
    QString m_carpetaNueva; ///< made here: it goes again when nothing stays in it
};

ObraEnFichero::~ObraEnFichero()
{
    QFile::remove(m_provisional);
    QFile::remove(m_provisional + u"-journal"_s);
    if (!m_carpetaNueva.isEmpty())
        QDir{}.rmdir(m_carpetaNueva); // only when it is empty
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
    if (QFileInfo::exists(carpeta))
        return;
    if (!QDir{}.mkpath(carpeta))
        noSeEscribe(u"no se puede crear la carpeta"_s);
    m_carpetaNueva = carpeta;
}

/// The engine opens only files that are there; an empty one is an empty database.
void ObraEnFichero::empiezaFichero()
{
    QFile fichero{m_provisional};
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Truncate))
        noSeEscribe(fichero.errorString());
}

/// Nobody sees the file before it has its name, so it needs neither a journal nor the disk's word.
void ObraEnFichero::construye(const Relleno& relleno)
{
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
    quitaRestos();
    std::error_code error;
    std::filesystem::rename(std::filesystem::path{m_provisional.toStdU16String()}, std::filesystem::path{m_ruta.toStdU16String()},
                            error);
    if (error)
        noSeEscribe(QString::fromLocal8Bit(error.message()));
    m_carpetaNueva.clear();
}

/// The log of the file that is replaced would be taken for the new one's.
void ObraEnFichero::quitaRestos() const
{
    for (const QString& cola : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
        QFile::remove(m_ruta + cola);
}

} // namespace

std::unique_ptr<Obra> obraEnFichero(const BaseEsquema& base, const QString& ruta)
{
    return std::make_unique<ObraEnFichero>(base, ruta);
}

} // namespace kestrane::instalacion
