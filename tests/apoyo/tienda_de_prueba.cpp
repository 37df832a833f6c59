#include "apoyo/tienda_de_prueba.h"

#include "instalacion/ddl.h"
#include "platform/runtime/error_ejecucion.h"

#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kestrane::prueba {

namespace {

/// The data source that stands for `dsn` on an engine.
QString fuente(jet::Motor motor, const QString& dsn)
{
    if (motor == jet::Motor::Sqlite)
        return dsn;
    const bool tienda = dsn.compare(instalacion::baseTienda().dsn, Qt::CaseInsensitive) == 0;
    const auto servidor = motor == jet::Motor::PostgreSql ? "KestranePg"_L1 : "KestraneMaria"_L1;
    return servidor + (tienda ? "Tienda"_L1 : "Listados"_L1);
}

void ejecutaDirecta(database::MotorBase& motor, const QString& sentencia)
{
    motor.prepara(sentencia.toUtf8(), {}, {})->ejecuta({});
}

/// Nothing here outlives a test.
void noEsperaAlDisco(database::MotorBase& motor)
{
    if (motor.clase() == jet::Motor::Sqlite)
        ejecutaDirecta(motor, u"pragma synchronous = off"_s);
}

void ejecutaTodas(Conexion& conexion, std::initializer_list<QString> sentencias)
{
    for (const QString& sentencia : sentencias)
        conexion.Execute(sentencia);
}

} // namespace

jet::Motor motorDePrueba()
{
    const QString nombre = qEnvironmentVariable("KESTRANE_MOTOR", u"sqlite"_s);
    if (nombre == u"sqlite")
        return jet::Motor::Sqlite;
    if (nombre == u"postgresql")
        return jet::Motor::PostgreSql;
    if (nombre == u"mariadb")
        return jet::Motor::MariaDb;
    throw std::runtime_error{"KESTRANE_MOTOR names no engine"};
}

TiendaDePrueba::TiendaDePrueba(jet::Motor motor) : m_motor{motor}, m_entorno{opciones()}
{
    if (!m_carpeta.isValid())
        throw std::runtime_error{m_carpeta.errorString().toStdString()};
    crea(instalacion::baseTienda());
    crea(instalacion::baseListados());
}

database::OpcionesDatos TiendaDePrueba::opciones(const Envoltura& envoltura) const
{
    database::OpcionesDatos llanas;
    llanas.carpeta = m_carpeta.path();
    database::OpcionesDatos completas = llanas;
    completas.abreMotor = [llanas, motor = m_motor, envoltura](const database::DestinoConexion& pedido) {
        database::DestinoConexion destino = pedido;
        destino.dsn = fuente(motor, pedido.dsn);
        auto abierto = EntornoDatos{llanas}.abre(destino);
        noEsperaAlDisco(*abierto);
        return envoltura ? envoltura(std::move(abierto), pedido.dsn) : std::move(abierto);
    };
    return completas;
}

void TiendaDePrueba::crea(const instalacion::BaseEsquema& base)
{
    if (m_motor == jet::Motor::Sqlite)
        creaFichero(base);
    else
        vaciaOCrea(base);
}

void TiendaDePrueba::creaFichero(const instalacion::BaseEsquema& base)
{
    QFile fichero{m_entorno.fichero(base.dsn)};
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw std::runtime_error{fichero.errorString().toStdString()};
    ejecutaDdl(base.dsn,
               QList<QString>{u"begin"_s} + instalacion::sentenciasDeCreacion(base, m_motor) + QList<QString>{u"commit"_s});
}

void TiendaDePrueba::vaciaOCrea(const instalacion::BaseEsquema& base)
{
    QList<QString> vaciado;
    for (const instalacion::TablaEsquema& tabla : base.tablas)
        vaciado += u"delete from "_s + QString{tabla.nombre}.toLower();
    try {
        ejecutaDdl(base.dsn, vaciado);
    } catch (const ErrorEjecucion&) {
        // A table is missing, or all are.
        ejecutaDdl(base.dsn, instalacion::sentenciasDeBorrado(base, m_motor) + instalacion::sentenciasDeCreacion(base, m_motor));
    }
}

void TiendaDePrueba::ejecutaDdl(const QString& dsn, const QList<QString>& sentencias)
{
    const auto motor = m_entorno.abre({.dsn = dsn, .usuario = {}, .clave = {}});
    for (const QString& sentencia : sentencias)
        ejecutaDirecta(*motor, sentencia);
}

Conexion& TiendaDePrueba::tienda()
{
    if (!m_tienda.abierta())
        m_tienda.Open(u"dsn="_s + instalacion::baseTienda().dsn);
    return m_tienda;
}

Conexion& TiendaDePrueba::listados()
{
    if (!m_listados.abierta())
        m_listados.Open(u"dsn="_s + instalacion::baseListados().dsn);
    return m_listados;
}

void TiendaDePrueba::ejecuta(std::initializer_list<QString> sentencias)
{
    ejecutaTodas(tienda(), sentencias);
}

void TiendaDePrueba::ejecutaListados(std::initializer_list<QString> sentencias)
{
    ejecutaTodas(listados(), sentencias);
}

void TiendaDePrueba::quitaTabla(const QString& nombre)
{
    quita(instalacion::baseTienda().dsn, nombre);
}

void TiendaDePrueba::quitaTablaListados(const QString& nombre)
{
    quita(instalacion::baseListados().dsn, nombre);
}

void TiendaDePrueba::quita(const QString& dsn, const QString& tabla)
{
    m_tienda.Close();
    m_listados.Close();
    ejecutaDdl(dsn, {u"drop table "_s + tabla.toLower()});
}

} // namespace kestrane::prueba
