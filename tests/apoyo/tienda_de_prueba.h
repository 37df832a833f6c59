#pragma once

#include "platform/database/conexion.h"
#include "platform/jet/traductor.h"

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <initializer_list>
#include <memory>

namespace kestrane::instalacion {
struct BaseEsquema;
}

namespace kestrane::prueba {

/// Sees an engine that was opened for the data source `dsn`, and may put another in front of it.
using Envoltura = std::function<std::unique_ptr<database::MotorBase>(std::unique_ptr<database::MotorBase>, const QString& dsn)>;

/// The engine on which the tests of this process run: that of the environment's KESTRANE_MOTOR ("postgresql", "mariadb"), else
/// SQLite.
[[nodiscard]] jet::Motor motorDePrueba();

/// A shop and its reports database, with all tables and no rows, in a folder of their own that goes with the object.
///
/// On a server the two stand behind the data sources of tests/servidores/con_servidores.sh and are emptied when the object is made,
/// so that one process at a time may use them.
class TiendaDePrueba
{
public:
    explicit TiendaDePrueba(jet::Motor motor = motorDePrueba());

    /// Where the embedded databases lie; room for a test's own files besides.
    [[nodiscard]] QString carpeta() const { return m_carpeta.path(); }
    /// For a ground of the test's own on these two databases: "dsn=TiendaKestrane" and "dsn=ListKestrane", whatever the engine.
    /// Spanish regional settings.
    [[nodiscard]] database::OpcionesDatos opciones(const Envoltura& envoltura = {}) const;

    [[nodiscard]] EntornoDatos& entorno() { return m_entorno; }
    /// Open connections to the two databases.
    [[nodiscard]] Conexion& tienda();
    [[nodiscard]] Conexion& listados();

    /// Runs Jet statements on the shop or on the reports database.
    void ejecuta(const QString& sentencia) { tienda().Execute(sentencia); }
    void ejecuta(std::initializer_list<QString> sentencias);
    void ejecutaListados(const QString& sentencia) { listados().Execute(sentencia); }
    void ejecutaListados(std::initializer_list<QString> sentencias);

    /// Takes whole tables away; `tienda` and `listados` are closed by it.
    void quitaTabla(const QString& nombre);
    void quitaTablaListados(const QString& nombre);

private:
    void crea(const instalacion::BaseEsquema& base);
    void creaFichero(const instalacion::BaseEsquema& base);
    void vaciaOCrea(const instalacion::BaseEsquema& base);
    void quita(const QString& dsn, const QString& tabla);
    void ejecutaDdl(const QString& dsn, const QList<QString>& sentencias);

    jet::Motor m_motor;
    QTemporaryDir m_carpeta;
    EntornoDatos m_entorno;
    Conexion m_tienda{m_entorno};
    Conexion m_listados{m_entorno};
};

} // namespace kestrane::prueba
