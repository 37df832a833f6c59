#include "instalacion/ddl.h"
#include "instalacion/obra.h"
#include "platform/database/odbc/odbc_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::instalacion {

namespace {

using database::MotorBase;

class ObraEnServidor : public Obra
{
public:
    ObraEnServidor(const BaseEsquema& base, QString dsn, std::unique_ptr<MotorBase> motor)
        : m_base{base}
        , m_dsn{std::move(dsn)}
        , m_motor{std::move(motor)}
    {
    }

    [[nodiscard]] QString nombre() const override { return m_dsn; }
    [[nodiscard]] bool ocupada() override
    {
        return std::ranges::any_of(
            m_base.tablas, [&](const TablaEsquema& tabla) { return m_motor->catalogo().tabla(QString{tabla.nombre}) != nullptr; });
    }

protected:
    void borraTablas()
    {
        for (const QString& sentencia : sentenciasDeBorrado(m_base, m_motor->clase()))
            ejecuta(*m_motor, sentencia);
    }
    void creaTablas()
    {
        for (const QString& sentencia : sentenciasDeCreacion(m_base, m_motor->clase())) {
            if (!creaIndice(sentencia))
                ejecuta(*m_motor, sentencia);
        }
    }
    void creaIndices()
    {
        for (const QString& sentencia : sentenciasDeCreacion(m_base, m_motor->clase())) {
            if (creaIndice(sentencia))
                ejecuta(*m_motor, sentencia);
        }
    }
    void rellena(const Relleno& relleno)
    {
        if (!relleno)
            return;
        Carga carga{*m_motor};
        relleno(carga);
        carga.envia();
    }
    /// For a destructor: the tables of a work that was given up, a transaction that failed among them.
    void recoge() noexcept
    {
        try {
            ejecuta(*m_motor, u"ROLLBACK"_s);
            borraTablas();
        } catch (const ErrorEjecucion&) { // the server is gone: nobody can tidy up
        }
    }
    [[nodiscard]] MotorBase& motor() { return *m_motor; }

private:
    const BaseEsquema& m_base;
    QString m_dsn;
    std::unique_ptr<MotorBase> m_motor;
};

class ObraEnPostgreSql final : public ObraEnServidor
{
public:
    using ObraEnServidor::ObraEnServidor;
    ~ObraEnPostgreSql() override
    {
        if (m_aLaVista)
            recoge();
    }
    ObraEnPostgreSql(const ObraEnPostgreSql&) = delete;
    ObraEnPostgreSql& operator=(const ObraEnPostgreSql&) = delete;

    /// The server takes the transaction back when the connection goes. Rows have transactions of their own, so that the tables must
    /// be there first.
    void construye(const Relleno& relleno) override
    {
        ejecuta(motor(), u"START TRANSACTION"_s);
        borraTablas();
        creaTablas();
        if (relleno) {
            ejecuta(motor(), u"COMMIT"_s);
            m_aLaVista = true;
            rellena(relleno);
            ejecuta(motor(), u"START TRANSACTION"_s);
        }
        creaIndices();
    }
    void termina() override
    {
        ejecuta(motor(), u"COMMIT"_s);
        m_aLaVista = true;
    }
    void confirma() noexcept override { m_aLaVista = false; }

private:
    bool m_aLaVista = false; ///< tables that others see and that may still be given up
};

class ObraEnMariaDb final : public ObraEnServidor
{
public:
    using ObraEnServidor::ObraEnServidor;
    ~ObraEnMariaDb() override
    {
        if (m_empezada)
            recoge();
    }
    ObraEnMariaDb(const ObraEnMariaDb&) = delete;
    ObraEnMariaDb& operator=(const ObraEnMariaDb&) = delete;

    void construye(const Relleno& relleno) override
    {
        m_empezada = true;
        borraTablas();
        creaTablas();
        rellena(relleno);
        creaIndices();
    }
    void termina() override {}
    void confirma() noexcept override { m_empezada = false; }

private:
    bool m_empezada = false;
};

QLatin1StringView nombreDe(jet::Motor motor)
{
    return motor == jet::Motor::MariaDb ? "MariaDB"_L1 : "PostgreSQL"_L1;
}

} // namespace

std::unique_ptr<Obra> obraEnServidor(const BaseEsquema& base, const QString& dsn, jet::Motor motor)
{
    auto abierto = database::odbc::abre(u"dsn="_s + dsn);
    if (abierto->clase() != motor)
        throw ErrorEjecucion{
            ErrorEjecucion::ConexionImposible,
            u"El origen de datos \"%1\" lleva a un servidor %2: corrija --motor o --dsn."_s.arg(dsn, nombreDe(abierto->clase()))};
    if (motor == jet::Motor::MariaDb)
        return std::make_unique<ObraEnMariaDb>(base, dsn, std::move(abierto));
    return std::make_unique<ObraEnPostgreSql>(base, dsn, std::move(abierto));
}

} // namespace kestrane::instalacion
