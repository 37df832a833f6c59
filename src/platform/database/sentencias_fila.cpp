#include "platform/database/sentencias_fila.h"

#include "platform/jet/dialecto.h"
#include "platform/jet/sql_identifier.h"

#include <algorithm>

namespace kestrane::database {

namespace {

QByteArray entreComillas(jet::Motor motor, const QString& nombre)
{
    return jet::SqlIdentifier{nombre}.entre(jet::dialectoDe(motor).comilla);
}

const QString& nombreDe(const jet::Tabla& tabla, int columna)
{
    return tabla.columnas[static_cast<size_t>(columna)].nombre;
}

/// The column that is the identity, nullptr when that is a hidden one.
const jet::Columna* columnaIdentidad(const jet::Tabla& tabla)
{
    const auto columna = std::find_if(tabla.columnas.begin(), tabla.columnas.end(),
                                      [&](const jet::Columna& una) { return una.nombre == tabla.identidad; });
    return columna == tabla.columnas.end() ? nullptr : &*columna;
}

/// A row's number comes as a double: servers find the row by their index only when they are told that it is whole.
QByteArray marcaDeIdentidad(jet::Motor motor, const jet::Tabla& tabla)
{
    if (motor == jet::Motor::Sqlite || columnaIdentidad(tabla))
        return "?";
    return motor == jet::Motor::MariaDb ? QByteArray{"cast(? as signed)"} : QByteArray{"cast(? as bigint)"};
}

QByteArray dondeIdentidad(jet::Motor motor, const jet::Tabla& tabla)
{
    return " where " + entreComillas(motor, tabla.identidad) + " = " + marcaDeIdentidad(motor, tabla);
}

/// A truth of the engine's own is a condition. PostgreSQL has to be told what the number in it is.
QByteArray marcaDe(jet::Motor motor, const jet::Tabla& tabla, int columna)
{
    if (!tabla.columnas[static_cast<size_t>(columna)].esVerdadDelMotor)
        return "?";
    return motor == jet::Motor::PostgreSql ? QByteArray{"cast(? as smallint) <> 0"} : QByteArray{"? <> 0"};
}

QByteArray sinColumnas(jet::Motor motor)
{
    return motor == jet::Motor::MariaDb ? QByteArray{" () values ()"} : QByteArray{" default values"};
}

} // namespace

QByteArray sqlInsercion(jet::Motor motor, const jet::Tabla& tabla, std::span<const int> columnas)
{
    QByteArray sql = "insert into " + entreComillas(motor, tabla.nombre);
    if (columnas.empty())
        return sql + sinColumnas(motor);
    sql += " (";
    QByteArray marcas;
    for (const int columna : columnas) {
        sql += entreComillas(motor, nombreDe(tabla, columna)) + ", ";
        marcas += marcaDe(motor, tabla, columna) + ", ";
    }
    sql.chop(2);
    marcas.chop(2);
    return sql + ") values (" + marcas + ")";
}

QByteArray sqlModificacion(jet::Motor motor, const jet::Tabla& tabla, std::span<const int> columnas)
{
    QByteArray sql = "update " + entreComillas(motor, tabla.nombre) + " set ";
    for (const int columna : columnas)
        sql += entreComillas(motor, nombreDe(tabla, columna)) + " = " + marcaDe(motor, tabla, columna) + ", ";
    sql.chop(2);
    return sql + dondeIdentidad(motor, tabla);
}

QByteArray sqlBorrado(jet::Motor motor, const jet::Tabla& tabla)
{
    return "delete from " + entreComillas(motor, tabla.nombre) + dondeIdentidad(motor, tabla);
}

jet::TipoColumna tipoDeIdentidad(const jet::Tabla& tabla)
{
    const jet::Columna* const columna = columnaIdentidad(tabla);
    return columna ? columna->tipo : jet::TipoColumna::Doble;
}

} // namespace kestrane::database
