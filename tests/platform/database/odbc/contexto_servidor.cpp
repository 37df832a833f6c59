#include "platform/database/odbc/contexto_servidor.h"

#include "instalacion/ddl.h"
#include "platform/database/odbc/odbc_motor.h"

#include <array>
#include <vector>

namespace kestrane::database::conformidad {
namespace {

using namespace Qt::StringLiterals;

void ejecuta(MotorBase& motor, const QString& sql)
{
    const auto sentencia = motor.prepara(sql.toUtf8(), {}, {});
    sentencia->ejecuta({});
    sentencia->reinicia();
}

void borraTablas(MotorBase& motor)
{
    const bool postgreSql = motor.clase() == jet::Motor::PostgreSql;
    const char* const sql = postgreSql ? "select quote_ident(tablename) from pg_tables where schemaname = current_schema()"
                                       : "select concat('`', table_name, '`') from information_schema.tables where table_schema = "
                                         "database()";
    const auto sentencia = motor.prepara(sql, {}, std::array{jet::TipoColumna::Texto});
    sentencia->ejecuta({});
    AlmacenFilas tablas{1};
    while (sentencia->siguiente(tablas)) {
    }
    sentencia->reinicia();
    while (tablas.siguiente())
        ejecuta(motor, u"drop table "_s + tablas.valor(0).texto());
}

/// A table as the writer of definitions takes it: it wants names that last.
class Definicion
{
public:
    explicit Definicion(const jet::Tabla& tabla) : m_nombre{tabla.nombre.toLatin1()}
    {
        for (const jet::Columna& columna : tabla.columnas)
            m_nombres.push_back(columna.nombre.toLatin1());
        for (size_t i = 0; i < m_nombres.size(); ++i) {
            const jet::Columna& columna = tabla.columnas[i];
            m_columnas.push_back({QLatin1StringView{m_nombres[i]}, columna.tipo, columna.ancho,
                                  columna.admiteNulo ? instalacion::Nulos::Admite : instalacion::Nulos::NoAdmite});
        }
        const QLatin1StringView clave = tabla.tieneClavesUnicas ? m_columnas.front().nombre : QLatin1StringView{};
        m_tablas[0] = {QLatin1StringView{m_nombre}, m_columnas, clave, {}};
    }

    [[nodiscard]] instalacion::BaseEsquema base() const { return {{}, m_tablas}; }

private:
    QByteArray m_nombre;
    std::vector<QByteArray> m_nombres;
    std::vector<instalacion::ColumnaEsquema> m_columnas;
    std::array<instalacion::TablaEsquema, 1> m_tablas;
};

class ContextoServidor final : public ContextoMotor
{
public:
    ContextoServidor(const QString& dsnTienda, const QString& dsnListados)
        : m_dsnTienda{dsnTienda}
        , m_dsnListados{dsnListados}
        , m_tienda{odbc::abre(dsnTienda)}
        , m_listados{odbc::abre(dsnListados)}
    {
        borraTablas(*m_tienda);
        borraTablas(*m_listados);
    }

    OpcionesDatos opciones() override
    {
        OpcionesDatos opciones;
        opciones.abreMotor = [tienda = m_dsnTienda, listados = m_dsnListados](const DestinoConexion& destino) {
            return odbc::abre(destino.dsn == dsn(Base::Tienda) ? tienda : listados, destino.usuario, destino.clave);
        };
        return opciones;
    }

    void crearTabla(Base base, const jet::Tabla& tabla) override
    {
        MotorBase& motor = base == Base::Tienda ? *m_tienda : *m_listados;
        const Definicion definicion{tabla};
        for (const QString& sentencia : instalacion::sentenciasDeCreacion(definicion.base(), motor.clase()))
            ejecuta(motor, sentencia);
    }

    std::shared_ptr<void> bloquea(Base base, const QString& tabla) override
    {
        std::shared_ptr<MotorBase> otro = odbc::abre(base == Base::Tienda ? m_dsnTienda : m_dsnListados);
        if (otro->clase() == jet::Motor::MariaDb) {
            ejecuta(*otro, u"lock tables `%1` write"_s.arg(tabla));
            return otro;
        }
        ejecuta(*otro, u"begin"_s);
        ejecuta(*otro, u"lock table \"%1\" in exclusive mode"_s.arg(tabla));
        return otro;
    }

private:
    QString m_dsnTienda;
    QString m_dsnListados;
    std::unique_ptr<MotorBase> m_tienda;
    std::unique_ptr<MotorBase> m_listados;
};

} // namespace

std::unique_ptr<ContextoMotor> contextoServidor(const QString& dsnTienda, const QString& dsnListados)
{
    return std::make_unique<ContextoServidor>(dsnTienda, dsnListados);
}

} // namespace kestrane::database::conformidad
