#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/motor.h"
#include "platform/runtime/configuracion_regional.h"

#include <QHash>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace kestrane::database {

class BaseCompartida;

/// What a Conexion asks an engine for.
struct DestinoConexion
{
    QString dsn; ///< NAME of "dsn=NAME"
    QString usuario;
    QString clave;
};

/// Where data sources are looked for: in the machine's ODBC set-up first, or among the embedded files alone.
enum class Origenes { DeMaquina, SoloEmbebidos };

/// The bounds and places that hold for all connections of a program.
struct OpcionesDatos
{
    /// Folder of the embedded databases, one file NAME.db each.
    QString carpeta;
    Origenes origenes = Origenes::DeMaquina;
    ConfiguracionRegional regional = ConfiguracionRegional::espania();
    /// Data source of the reports database: scratch space, so that it need not wait for the disk.
    QString dsnListados = QStringLiteral("ListKestrane");
    /// How long a statement waits for another program that has the database locked.
    std::chrono::milliseconds espera{5000};
    qsizetype limiteFilas = AlmacenFilas::LimitePorDefecto;  ///< bytes of one result held in memory
    int formas = 1000;                                       ///< statement shapes kept ready per connection
    qsizetype bytesFormas = qsizetype{8} * 1024 * 1024;      ///< and the bytes of their texts
    int filasPorEnvio = 500;                                 ///< added rows that are gathered before they are sent
    qsizetype bytesRecordados = qsizetype{16} * 1024 * 1024; ///< answers remembered during one report
    int clavesPorLote = 200;                                 ///< keys of one read-ahead statement
    /// Opens an engine; when empty, the machine's ODBC set-up decides and else the embedded file.
    std::function<std::unique_ptr<MotorBase>(const DestinoConexion&)> abreMotor;
};

/// The ground on which a program's connections stand: made once, it outlives them. It holds what all connections to one database
/// share, the gathered rows above all. No singleton: two of them (tests) know nothing of each other.
class EntornoDatos
{
public:
    explicit EntornoDatos(OpcionesDatos opciones);
    ~EntornoDatos();
    EntornoDatos(const EntornoDatos&) = delete;
    EntornoDatos& operator=(const EntornoDatos&) = delete;

    [[nodiscard]] const OpcionesDatos& opciones() const { return m_opciones; }
    [[nodiscard]] const ConfiguracionRegional& regional() const { return m_opciones.regional; }
    /// The number of decimals of amounts, once the shop's options have told it.
    void ponDecimales(int decimales) { m_opciones.regional.decimales = decimales; }

    /// Sends the added rows that still wait, of all databases, for the program's error handler and its end. Never throws; false
    /// when some could not be sent.
    bool enviaPendientes() noexcept;
    /// For the program's normal end, once its connections have done their work: sends what waits. Throws when rows could not be
    /// sent, or were refused when a recordset or a connection went without being closed.
    void termina();

    /// Opens the engine of a data source. ErrorEjecucion ConexionImposible.
    [[nodiscard]] std::unique_ptr<MotorBase> abre(const DestinoConexion& destino) const;
    /// What the connections to one data source share, made when first asked for.
    [[nodiscard]] std::shared_ptr<BaseCompartida> base(const QString& dsn);
    /// The embedded file of a data source.
    [[nodiscard]] QString fichero(const QString& dsn) const;

private:
    OpcionesDatos m_opciones;
    QHash<QString, std::shared_ptr<BaseCompartida>> m_bases;
};

} // namespace kestrane::database
