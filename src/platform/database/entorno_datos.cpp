#include "platform/database/entorno_datos.h"

#include "platform/database/base_compartida.h"
#include "platform/database/odbc/odbc_motor.h"
#include "platform/database/sqlite/sqlite_motor.h"

#include <QDir>
#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace kestrane::database {

namespace {

odbc::OpcionesOdbc opcionesOdbc(const OpcionesDatos& opciones)
{
    odbc::OpcionesOdbc deServidor;
    deServidor.espera = opciones.espera;
    return deServidor;
}

} // namespace

EntornoDatos::EntornoDatos(OpcionesDatos opciones) : m_opciones{std::move(opciones)} {}

EntornoDatos::~EntornoDatos()
{
    try {
        termina();
    } catch (const ErrorEjecucion& error) {
        qWarning("%s", error.what()); // nobody is left to whom it could be told
    }
}

void EntornoDatos::termina()
{
    std::exception_ptr primero;
    for (const auto& base : m_bases) {
        try {
            base->enviaYAvisa();
        } catch (const ErrorEjecucion&) {
            if (!primero)
                primero = std::current_exception();
        }
    }
    if (primero)
        std::rethrow_exception(primero);
}

bool EntornoDatos::enviaPendientes() noexcept
{
    bool todas = true;
    for (const auto& base : m_bases)
        todas = base->enviaSinError() && todas;
    return todas;
}

QString EntornoDatos::fichero(const QString& dsn) const
{
    return QDir{m_opciones.carpeta}.filePath(dsn + u".db"_s);
}

std::unique_ptr<MotorBase> EntornoDatos::abre(const DestinoConexion& destino) const
{
    if (m_opciones.abreMotor)
        return m_opciones.abreMotor(destino);
    if (m_opciones.origenes == Origenes::DeMaquina && odbc::defineDsn(destino.dsn))
        return odbc::abre(u"dsn="_s + destino.dsn, destino.usuario, destino.clave, opcionesOdbc(m_opciones));
    const bool listados = destino.dsn.compare(m_opciones.dsnListados, Qt::CaseInsensitive) == 0;
    return std::make_unique<sqlite::SqliteMotor>(sqlite::OpcionesSqlite{
        fichero(destino.dsn), listados ? sqlite::Uso::Listados : sqlite::Uso::Tienda, m_opciones.espera, m_opciones.regional});
}

std::shared_ptr<BaseCompartida> EntornoDatos::base(const QString& dsn)
{
    auto& base = m_bases[dsn.toCaseFolded()];
    if (!base)
        base = std::make_shared<BaseCompartida>(dsn, m_opciones.espera);
    return base;
}

} // namespace kestrane::database
