#include "platform/database/odbc/odbc_catalogo.h"

#include "platform/database/odbc/odbc_sentencia.h"
#include "platform/jet/nombres.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kestrane::database::odbc {

namespace {

using jet::TipoColumna;

struct Nombrado
{
    QLatin1StringView nombre;
    TipoColumna tipo;
    bool esVerdad = false;
};

// `sino` is the domain that crear-tienda makes.
constexpr Nombrado TiposPostgreSql[] = {
    {"int4"_L1, TipoColumna::Entero32},       {"int2"_L1, TipoColumna::Entero16},
    {"int8"_L1, TipoColumna::Doble},          {"sino"_L1, TipoColumna::SiNo},
    {"bool"_L1, TipoColumna::SiNo, true},     {"float8"_L1, TipoColumna::Doble},
    {"float4"_L1, TipoColumna::Doble},        {"numeric"_L1, TipoColumna::Doble},
    {"timestamp"_L1, TipoColumna::FechaHora}, {"timestamptz"_L1, TipoColumna::FechaHora},
    {"date"_L1, TipoColumna::FechaHora},      {"time"_L1, TipoColumna::FechaHora},
    {"varchar"_L1, TipoColumna::Texto},       {"bpchar"_L1, TipoColumna::Texto},
};

constexpr Nombrado TiposMariaDb[] = {
    {"int"_L1, TipoColumna::Entero32},       {"mediumint"_L1, TipoColumna::Entero32},  {"smallint"_L1, TipoColumna::Entero16},
    {"tinyint"_L1, TipoColumna::SiNo},       {"bit"_L1, TipoColumna::SiNo, true},      {"bigint"_L1, TipoColumna::Doble},
    {"double"_L1, TipoColumna::Doble},       {"float"_L1, TipoColumna::Doble},         {"decimal"_L1, TipoColumna::Doble},
    {"datetime"_L1, TipoColumna::FechaHora}, {"timestamp"_L1, TipoColumna::FechaHora}, {"date"_L1, TipoColumna::FechaHora},
    {"time"_L1, TipoColumna::FechaHora},     {"varchar"_L1, TipoColumna::Texto},       {"char"_L1, TipoColumna::Texto},
};

// One row for each column: table, column, type, width, null allowed, place in the primary key (from 1, 0: not in it), rules that
// may refuse a row or a default that a Null would displace. The marks are the table's name three times. An exact name goes before
// one that differs in case.
constexpr char ConsultaPostgreSql[] = R"(
select c.relname::varchar, a.attname::varchar, t.typname::varchar,
       case when a.atttypmod > 4 and t.typname in ('varchar', 'bpchar') then a.atttypmod - 4 else 0 end,
       case when a.attnotnull or t.typnotnull then 0 else 1 end,
       coalesce((select k.lugar from pg_index i, unnest(i.indkey) with ordinality k(columna, lugar)
                 where i.indrelid = c.oid and i.indisprimary and k.columna = a.attnum), 0)::int,
       case when exists (select 1 from pg_index i where i.indrelid = c.oid and i.indisunique
                         and not (i.indisprimary and i.indnatts = 1 and exists
                                  (select 1 from pg_attribute o
                                   where o.attrelid = c.oid and o.attnum = i.indkey[0] and o.attname = 'orden_')))
                 or exists (select 1 from pg_constraint k where k.conrelid = c.oid and k.contype in ('c', 'f', 'x'))
                 or exists (select 1 from pg_trigger d where d.tgrelid = c.oid and not d.tgisinternal)
                 or (a.atthasdef or t.typdefault is not null) and not (a.attnotnull or t.typnotnull)
            then 1 else 0 end
from pg_class c join pg_attribute a on a.attrelid = c.oid join pg_type t on t.oid = a.atttypid
where lower(c.relname) = lower(?) and c.relkind in ('r', 'p', 'v', 'm', 'f') and a.attnum > 0 and not a.attisdropped
      and pg_table_is_visible(c.oid) and c.relnamespace <> 'pg_catalog'::regnamespace
order by case when c.relname = ? then 0 else 1 end, c.relname, a.attnum)";

constexpr char ConsultaMariaDb[] = R"(
select c.table_name, c.column_name, c.data_type, least(coalesce(c.character_maximum_length, 0), 65535),
       case when c.is_nullable = 'YES' then 1 else 0 end,
       coalesce((select s.seq_in_index from information_schema.statistics s
                 where s.table_schema = c.table_schema and s.table_name = c.table_name and s.index_name = 'PRIMARY'
                       and s.column_name = c.column_name), 0),
       case when exists (select 1 from information_schema.statistics s
                         where s.table_schema = c.table_schema and s.table_name = c.table_name and s.non_unique = 0
                               and s.column_name <> 'orden_')
                 or exists (select 1 from information_schema.table_constraints k
                            where k.table_schema = c.table_schema and k.table_name = c.table_name
                                  and k.constraint_type in ('FOREIGN KEY', 'CHECK'))
                 or exists (select 1 from information_schema.triggers d
                            where d.event_object_schema = c.table_schema and d.event_object_table = c.table_name)
                 or c.is_nullable = 'YES' and upper(coalesce(c.column_default, 'NULL')) <> 'NULL'
            then 1 else 0 end
from information_schema.columns c
where c.table_schema = database() and lower(c.table_name) = lower(?)
order by case when c.table_name = ? then 0 else 1 end, c.table_name, c.ordinal_position)";

enum Salida { Tabla, Columna, Tipo, Ancho, AdmiteNulo, LugarEnClave, TieneReglas, Salidas };
constexpr std::array<TipoColumna, Salidas> TiposDeSalida = {TipoColumna::Texto,    TipoColumna::Texto,    TipoColumna::Texto,
                                                            TipoColumna::Entero32, TipoColumna::Entero32, TipoColumna::Entero32,
                                                            TipoColumna::Entero32};

AlmacenFilas filasDe(const std::shared_ptr<OdbcConexion>& conexion, QStringView nombre)
{
    const bool postgreSql = conexion->motor() == jet::Motor::PostgreSql;
    const std::array parametros = {TipoColumna::Texto, TipoColumna::Texto};
    OdbcSentencia sentencia{conexion, postgreSql ? ConsultaPostgreSql : ConsultaMariaDb, parametros, TiposDeSalida};
    sentencia.ejecuta(std::array<Ligado, 2>{nombre, nombre});
    AlmacenFilas filas{Salidas};
    while (sentencia.siguiente(filas)) {
    }
    return filas;
}

/// The places of the primary key's columns may come in any order.
void ponEnOrden(std::vector<QString>& clave, int lugar, const QString& columna)
{
    if (clave.size() < static_cast<size_t>(lugar))
        clave.resize(static_cast<size_t>(lugar));
    clave[static_cast<size_t>(lugar) - 1] = columna;
}

void anade(jet::Tabla& tabla, const AlmacenFilas& fila, jet::Motor motor)
{
    const QString columna = fila.valor(Columna).texto();
    if (jet::mismoNombre(columna, ColumnaDeOrden)) {
        tabla.identidad = columna;
        return;
    }
    if (const int lugar = fila.valor(LugarEnClave).entero32(); lugar > 0)
        ponEnOrden(tabla.orden, lugar, columna);
    const auto [tipo, ancho, esVerdad] = tipoDeServidor(motor, fila.valor(Tipo).texto(), fila.valor(Ancho).entero32());
    tabla.columnas.push_back({columna, tipo, ancho, fila.valor(AdmiteNulo).entero32() != 0, esVerdad});
}

/// No number that a row is asked for by equals the engine's own truths.
bool sirveDeIdentidad(const jet::Tabla& tabla, const QString& nombre)
{
    const auto esSuya = [&](const jet::Columna& columna) { return columna.esVerdadDelMotor && columna.nombre == nombre; };
    return std::ranges::none_of(tabla.columnas, esSuya);
}

std::shared_ptr<jet::Tabla> lee(const std::shared_ptr<OdbcConexion>& conexion, QStringView nombre)
{
    AlmacenFilas filas = filasDe(conexion, nombre);
    if (filas.filas() == 0)
        return nullptr;
    auto tabla = std::make_shared<jet::Tabla>();
    while (filas.siguiente() && (tabla->nombre.isEmpty() || tabla->nombre == filas.valor(Tabla).texto())) {
        tabla->nombre = filas.valor(Tabla).texto();
        tabla->tieneClavesUnicas = tabla->tieneClavesUnicas || filas.valor(TieneReglas).entero32() != 0;
        anade(*tabla, filas, conexion->motor());
    }
    if (!tabla->identidad.isEmpty())
        tabla->orden = {tabla->identidad};
    else if (tabla->orden.size() == 1 && sirveDeIdentidad(*tabla, tabla->orden.front()))
        tabla->identidad = tabla->orden.front();
    return tabla;
}

} // namespace

TipoServidor tipoDeServidor(jet::Motor motor, QStringView tipo, int ancho)
{
    const auto busca = [&](std::span<const Nombrado> tipos) -> TipoServidor {
        for (const Nombrado& uno : tipos) {
            if (uno.nombre == tipo)
                return {uno.tipo, uno.tipo == TipoColumna::Texto ? ancho : 0, uno.esVerdad};
        }
        return {};
    };
    return motor == jet::Motor::MariaDb ? busca(TiposMariaDb) : busca(TiposPostgreSql);
}

const jet::Tabla* OdbcCatalogo::tabla(QStringView nombre)
{
    const QString clave = jet::nombrePlegado(nombre);
    const auto conocida = m_tablas.constFind(clave);
    if (conocida != m_tablas.constEnd())
        return conocida->get();
    const auto leida = lee(m_conexion, nombre);
    return leida ? m_tablas.insert(clave, leida)->get() : nullptr;
}

} // namespace kestrane::database::odbc
