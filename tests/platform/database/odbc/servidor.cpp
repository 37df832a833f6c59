#include "platform/database/odbc/servidor.h"

#include <array>

namespace kestrane::database::odbc {

std::vector<Caso> todosLosCasos()
{
    return {{"PostgreSql", jet::Motor::PostgreSql, u"KestranePgTienda"_s},
            {"PostgreSqlUtf16", jet::Motor::PostgreSql, u"KestranePgTienda"_s, FormaTexto::Utf16},
            {"MariaDb", jet::Motor::MariaDb, u"KestraneMariaTienda"_s}};
}

std::string enPalabras(const Valor& valor)
{
    switch (valor.clase()) {
    case Valor::Clase::Nulo:
        return "NULL";
    case Valor::Clase::Logico:
        return valor.logico() ? "si" : "no";
    case Valor::Clase::Entero16:
    case Valor::Clase::Entero32:
        return std::to_string(valor.entero32());
    case Valor::Clase::Doble:
        return QByteArray::number(valor.doble(), 'g', 17).toStdString();
    case Valor::Clase::Fecha: {
        const Fecha fecha = valor.fecha();
        return std::to_string(fecha.anio()) + "-" + std::to_string(fecha.mes()) + "-" + std::to_string(fecha.dia()) + " " +
               std::to_string(fecha.hora()) + ":" + std::to_string(fecha.minuto()) + ":" + std::to_string(fecha.segundo());
    }
    case Valor::Clase::Texto:
        break;
    }
    return "'" + valor.texto().toStdString() + "'";
}

Servidor::Servidor()
{
    m_motor = otro();
    ejecuta(u"drop table if exists t"_s);
    if (esPostgreSql())
        ejecuta(
            u"create table t (orden_ bigint generated always as identity primary key, a integer, i smallint, d double precision, "
            u"f timestamp(0), x varchar(50), m text, s smallint not null default 0)"_s);
    else
        ejecuta(u"create table t (orden_ bigint not null invisible auto_increment primary key, a int, i smallint, d double, "
                u"f datetime, x varchar(50), m mediumtext, s tinyint not null default 0) engine = innodb default character set "
                u"utf8mb4 collate utf8mb4_uca1400_spanish_nopad_as_ci"_s);
}

std::unique_ptr<MotorBase> Servidor::otro(OpcionesOdbc opciones) const
{
    opciones.forma = GetParam().forma;
    return abre(u"dsn="_s + GetParam().dsn, {}, {}, opciones);
}

qint64 Servidor::ejecuta(const QString& sql, std::initializer_list<Ligado> valores, std::vector<TipoColumna> tipos)
{
    const auto sentencia = m_motor->prepara(sql.toUtf8(), tipos, {});
    sentencia->ejecuta({valores.begin(), valores.size()});
    return sentencia->afectadas();
}

qint64 Servidor::ejecuta(MotorBase& motor, const QString& sql)
{
    const auto sentencia = motor.prepara(sql.toUtf8(), {}, {});
    sentencia->ejecuta({});
    return sentencia->afectadas();
}

std::string Servidor::filas(const QString& sql, std::vector<TipoColumna> resultado)
{
    const auto sentencia = m_motor->prepara(sql.toUtf8(), {}, resultado);
    return filas(*sentencia, static_cast<int>(resultado.size()));
}

std::string Servidor::filas(SentenciaMotor& sentencia, int columnas, std::initializer_list<Ligado> valores)
{
    AlmacenFilas almacen{columnas};
    sentencia.ejecuta({valores.begin(), valores.size()});
    while (sentencia.siguiente(almacen)) {
    }
    sentencia.reinicia();
    std::string todas;
    while (almacen.siguiente()) {
        for (int i = 0; i < columnas; ++i)
            todas += (i > 0 ? "," : "") + enPalabras(almacen.valor(i));
        todas += "|";
    }
    return todas;
}

std::optional<ErrorMotor> Servidor::error(const std::function<void()>& accion)
{
    try {
        accion();
    } catch (const ErrorMotor& error) {
        return error;
    }
    return std::nullopt;
}

int Servidor::numeroDeConexion()
{
    return std::stoi(filas(segun(u"select pg_backend_pid()", u"select connection_id()"), {TipoColumna::Entero32}));
}

void Servidor::corta(int numero)
{
    const auto verdugo = otro();
    const QString sql = segun(u"do $$ begin perform pg_terminate_backend(%1, 5000); end $$", u"kill %1");
    ejecuta(*verdugo, sql.arg(numero));
}

void Servidor::cortaLasDemas()
{
    const std::string numeros =
        filas(segun(u"select pid from pg_stat_activity where datname = current_database() and pid <> pg_backend_pid()",
                    u"select id from information_schema.processlist where db = database() and id <> connection_id()"),
              {TipoColumna::Entero32});
    for (const QString& numero : QString::fromStdString(numeros).split(u'|', Qt::SkipEmptyParts))
        ejecuta(segun(u"do $$ begin perform pg_terminate_backend(%1, 5000); end $$", u"kill %1").arg(numero));
}

OpcionesDatos Servidor::opcionesDatos() const
{
    OpcionesDatos opciones;
    opciones.abreMotor = [this](const DestinoConexion&) { return otro(); };
    return opciones;
}

void Servidor::llena(int hasta)
{
    ejecuta(segun(u"insert into t (a, x) select n, 'fila ' || n from generate_series(1, %1) n",
                  u"insert into t (a, x) select seq, concat('fila ', seq) from seq_1_to_%1")
                .arg(hasta));
}

} // namespace kestrane::database::odbc
