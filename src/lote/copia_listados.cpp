#include "lote/copia_listados.h"

#include "instalacion/ddl.h"
#include "platform/database/conexion.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <QDir>
#include <QFile>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

const QString Dsn = u"ListKestrane"_s;

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

CopiaListados::CopiaListados(const database::OpcionesDatos& originales, const QString& carpeta)
    : m_originales{originales}
    , m_carpeta{eligeCarpeta(carpeta)}
    , m_copia{originales}
{
    m_copia.carpeta = m_carpeta;
    m_copia.origenes = database::Origenes::SoloEmbebidos;
    m_copia.abreMotor = {};
    creaFichero();
    creaTablas();
    copia();
}

QString CopiaListados::eligeCarpeta(const QString& carpeta)
{
    if (carpeta.isEmpty()) {
        m_propia = std::make_unique<QTemporaryDir>();
        return m_propia->isValid() ? m_propia->path() : (noSePuede(m_propia->errorString()), QString{});
    }
    if (!QDir{}.mkpath(carpeta))
        noSePuede(u"no se puede crear la carpeta \"%1\""_s.arg(carpeta));
    if (esLaMisma(carpeta, m_originales.carpeta))
        noSePuede(u"\"%1\" es la carpeta de la original, que no se toca"_s.arg(carpeta));
    return carpeta;
}

void CopiaListados::creaFichero() const
{
    const QString nombre = QDir{m_carpeta}.filePath(Dsn + u".db"_s);
    for (const QString& cola : {u""_s, u"-wal"_s, u"-shm"_s})
        QFile::remove(nombre + cola);
    QFile fichero{nombre};
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        noSePuede(u"no se puede escribir \"%1\" (%2)"_s.arg(nombre, fichero.errorString()));
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
