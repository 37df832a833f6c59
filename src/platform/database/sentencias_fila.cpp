#include "platform/database/sentencias_fila.h"

#include <algorithm>

namespace kestrane::database {

namespace {

QByteArray entreComillas(jet::Motor motor, const QString& nombre)
{
    const char marca = motor == jet::Motor::MariaDb ? '`' : '"';
    QByteArray texto = nombre.toUtf8();
    texto.replace(QByteArray(1, marca), QByteArray(2, marca));
    return marca + texto + marca;
}

const QString& nombreDe(const jet::Tabla& tabla, int columna)
{
    return tabla.columnas[static_cast<size_t>(columna)].nombre;
}

QByteArray dondeIdentidad(jet::Motor motor, const jet::Tabla& tabla)
{
    return " where " + entreComillas(motor, tabla.identidad) + " = ?";
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
    for (const int columna : columnas)
        sql += entreComillas(motor, nombreDe(tabla, columna)) + ", ";
    sql.chop(2);
    return sql + ") values (" + QByteArray("?, ").repeated(static_cast<qsizetype>(columnas.size()) - 1) + "?)";
}

QByteArray sqlModificacion(jet::Motor motor, const jet::Tabla& tabla, std::span<const int> columnas)
{
    QByteArray sql = "update " + entreComillas(motor, tabla.nombre) + " set ";
    for (const int columna : columnas)
        sql += entreComillas(motor, nombreDe(tabla, columna)) + " = ?, ";
    sql.chop(2);
    return sql + dondeIdentidad(motor, tabla);
}

QByteArray sqlBorrado(jet::Motor motor, const jet::Tabla& tabla)
{
    return "delete from " + entreComillas(motor, tabla.nombre) + dondeIdentidad(motor, tabla);
}

jet::TipoColumna tipoDeIdentidad(const jet::Tabla& tabla)
{
    const auto columna = std::find_if(tabla.columnas.begin(), tabla.columnas.end(),
                                      [&](const jet::Columna& una) { return una.nombre == tabla.identidad; });
    return columna == tabla.columnas.end() ? jet::TipoColumna::Entero32 : columna->tipo;
}

} // namespace kestrane::database
