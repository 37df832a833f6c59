#include "lote/copia_listados.h"

#include "instalacion/ddl.h"
#include "platform/database/conexion.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"
#include "platform/runtime/fichero_destino.h"
#include "platform/runtime/motivo_sistema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

const QString Dsn = u"ListKestrane"_s;
const QString Ending = u".db"_s;

[[noreturn]] void noSePuede(const QString& motivo)
{
    throw ErrorEjecucion{ErrorEjecucion::ConexionImposible,
                         u"No se puede preparar la base de datos de listados: %1."_s.arg(motivo)};
}

/// Opens for reading alone: as the suite's files are opened, which are left as they are found.
database::OpcionesDatos sinTocar(database::OpcionesDatos opciones)
{
    opciones.dsnListados.clear();
    return opciones;
}

void exigeTabla(const QString& sentencia, Conexion& conexion)
{
    Recordset filas;
    filas.Open(sentencia, conexion, CursorType::Keyset);
}

bool esLaMisma(const QString& una, const QString& otra)
{
    const QString canonica = QDir{una}.canonicalPath();
    return !canonica.isEmpty() && canonica == QDir{otra}.canonicalPath();
}

} // namespace

CopiaListados::CopiaListados(const database::OpcionesDatos& originales, QString destino)
    : m_originales{originales}
    , m_destino{std::move(destino)}
    , m_carpeta{haceCarpeta()}
    , m_copia{originales}
{
    m_copia.carpeta = carpeta();
    m_copia.origenes = database::Origenes::SoloEmbebidos;
    m_copia.abreMotor = {};
    creaFichero();
    creaTablas();
    copia();
}

/// Inside the folder in which the copy is to be kept, so that it takes its place there in one step.
std::unique_ptr<QTemporaryDir> CopiaListados::haceCarpeta() const
{
    if (!m_destino.isEmpty())
        compruebaDestino();
    const QString donde = m_destino.isEmpty() ? QDir::tempPath() : m_destino;
    if (donde.isEmpty()) // the environment names a folder that is not there
        noSePuede(u"no se puede escribir en la carpeta \"%1\" (no existe)"_s.arg(qEnvironmentVariable("TMPDIR")));
    auto carpeta = std::make_unique<QTemporaryDir>(QDir{donde}.filePath(u"listados-lote-XXXXXX"_s));
    if (!carpeta->isValid())
        noSePuede(u"no se puede escribir en la carpeta \"%1\" (%2)"_s.arg(donde, motivoDeTexto(carpeta->errorString())));
    return carpeta;
}

void CopiaListados::compruebaDestino() const
{
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path{m_destino.toStdU16String()}, error);
    if (error)
        noSePuede(u"no se puede crear la carpeta \"%1\" (%2)"_s.arg(m_destino, motivoDe(error)));
    if (esLaMisma(m_destino, m_originales.carpeta))
        noSePuede(u"\"%1\" es la carpeta de la original, que no se toca"_s.arg(m_destino));
    if (QFileInfo::exists(QDir{m_destino}.filePath(instalacion::baseTienda().dsn + Ending)))
        noSePuede(u"en \"%1\" está la base de datos de una tienda, y se perderían sus listados"_s.arg(m_destino));
}

void CopiaListados::creaFichero() const
{
    const QString nombre = QDir{carpeta()}.filePath(Dsn + Ending);
    QFile fichero{nombre};
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        noSePuede(u"no se puede escribir \"%1\" (%2)"_s.arg(nombre, motivoDe(fichero)));
}

void CopiaListados::creaTablas() const
{
    const auto motor = EntornoDatos{m_copia}.abre({.dsn = Dsn, .usuario = {}, .clave = {}});
    const auto ejecuta = [&motor](const QString& sql) { motor->prepara(sql.toUtf8(), {}, {})->ejecuta({}); };
    ejecuta(u"begin"_s);
    for (const QString& sentencia : instalacion::sentenciasDeCreacion(instalacion::baseListados(), jet::Motor::Sqlite))
        ejecuta(sentencia);
    ejecuta(u"commit"_s);
}

void CopiaListados::copia() const
{
    EntornoDatos entornoOriginal{sinTocar(m_originales)};
    EntornoDatos entornoCopia{m_copia};
    Conexion original{entornoOriginal};
    Conexion copia{entornoCopia};
    original.Open(u"dsn="_s + Dsn);
    copia.Open(u"dsn="_s + Dsn);
    exigeTabla(u"Select * from informes"_s, original);
    exigeTabla(u"Select * from subinformes"_s, original);
    Recordset origen;
    origen.Open(u"Select list1 from listadostemporal"_s, original);
    Recordset destino;
    destino.Open(u"Select * from listadostemporal"_s, copia, CursorType::Keyset);
    for (Recordset& fila : origen) {
        destino.AddNew();
        destino.Fields(u"list1") = fila.Fields(u"list1");
        destino.Update();
    }
    destino.Close();
    copia.Close();
}

void CopiaListados::conserva() const
{
    if (m_destino.isEmpty())
        return;
    const QString anterior = QDir{m_destino}.filePath(Dsn + Ending);
    if (const QString estorbo = estorboEn(anterior); !estorbo.isEmpty())
        noSePuede(u"no se puede escribir \"%1\" (%2)"_s.arg(anterior, estorbo));
    for (const QString& cola : {u"-wal"_s, u"-shm"_s}) // the log of the older one would be taken for this one's
        QFile::remove(anterior + cola);
    std::error_code error;
    std::filesystem::rename(std::filesystem::path{QDir{carpeta()}.filePath(Dsn + Ending).toStdU16String()},
                            std::filesystem::path{anterior.toStdU16String()}, error);
    if (error)
        noSePuede(u"no se puede escribir \"%1\" (%2)"_s.arg(anterior, motivoDe(error)));
}

database::OpcionesDatos CopiaListados::opciones() const
{
    database::OpcionesDatos todas = m_originales;
    todas.abreMotor = [originales = m_originales, copia = m_copia](const database::DestinoConexion& destino) {
        const bool esCopia = destino.dsn.compare(Dsn, Qt::CaseInsensitive) == 0;
        return EntornoDatos{esCopia ? copia : originales}.abre(destino);
    };
    return todas;
}

} // namespace kestrane::lote
