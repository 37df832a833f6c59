#include "instalacion/ddl.h"

namespace kestrane::instalacion {

using namespace Qt::StringLiterals;
using jet::Motor;
using jet::TipoColumna;

namespace {

/// What the engines say differently.
struct Dialecto
{
    std::span<const QLatin1StringView> preparacion; ///< before the first table
    QLatin1StringView orden;                        ///< the hidden column
    QLatin1StringView cola;                         ///< behind the columns of a table
    QLatin1StringView texto;                        ///< %1 is the width
    QLatin1StringView memo;
    QLatin1StringView entero32;
    QLatin1StringView entero16;
    QLatin1StringView doble;
    QLatin1StringView fechaHora;
    QLatin1StringView siNo;
};

constexpr Dialecto Sqlite{
    .preparacion = {},
    .orden = {},
    .cola = {},
    .texto = "TEXT(%1)"_L1,
    .memo = "TEXT"_L1,
    .entero32 = "INTEGER"_L1,
    .entero16 = "SMALLINT"_L1,
    .doble = "DOUBLE"_L1,
    .fechaHora = "DATETIME"_L1,
    .siNo = "YESNO"_L1,
};

// The collation ignores case and minds accents; ñ sorts behind n. The domain tells a YESNO from a number of 16 bits.
constexpr QLatin1StringView PreparacionPostgreSql[] = {
    "CREATE COLLATION IF NOT EXISTS espanol (provider = icu, locale = 'es-u-ks-level2', deterministic = false)"_L1,
    "DO $$ BEGIN CREATE DOMAIN sino AS smallint; EXCEPTION WHEN duplicate_object THEN NULL; END $$"_L1,
};

constexpr Dialecto PostgreSql{
    .preparacion = PreparacionPostgreSql,
    .orden = "orden_ bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY"_L1,
    .cola = {},
    .texto = "varchar(%1) COLLATE espanol"_L1,
    .memo = "text COLLATE espanol"_L1,
    .entero32 = "integer"_L1,
    .entero16 = "smallint"_L1,
    .doble = "double precision"_L1,
    .fechaHora = "timestamp(0)"_L1,
    .siNo = "sino"_L1,
};

constexpr QLatin1StringView PreparacionMariaDb[] = {
    "ALTER DATABASE CHARACTER SET utf8mb4 COLLATE utf8mb4_uca1400_spanish_nopad_as_ci"_L1,
};

// TEXT would end at 65,535 bytes.
constexpr Dialecto MariaDb{
    .preparacion = PreparacionMariaDb,
    .orden = "orden_ bigint NOT NULL INVISIBLE AUTO_INCREMENT PRIMARY KEY"_L1,
    .cola = " ENGINE = InnoDB DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_uca1400_spanish_nopad_as_ci"_L1,
    .texto = "varchar(%1)"_L1,
    .memo = "mediumtext"_L1,
    .entero32 = "int"_L1,
    .entero16 = "smallint"_L1,
    .doble = "double"_L1,
    .fechaHora = "datetime"_L1,
    .siNo = "tinyint"_L1,
};

const Dialecto& dialecto(Motor motor)
{
    switch (motor) {
    case Motor::PostgreSql:
        return PostgreSql;
    case Motor::MariaDb:
        return MariaDb;
    case Motor::Sqlite:
        break;
    }
    return Sqlite;
}

QString tipo(const ColumnaEsquema& columna, const Dialecto& dialecto)
{
    switch (columna.tipo) {
    case TipoColumna::Memo:
        return dialecto.memo;
    case TipoColumna::Entero32:
        return dialecto.entero32;
    case TipoColumna::Entero16:
        return dialecto.entero16;
    case TipoColumna::Doble:
        return dialecto.doble;
    case TipoColumna::FechaHora:
        return dialecto.fechaHora;
    case TipoColumna::SiNo:
        return dialecto.siNo;
    case TipoColumna::Texto:
        break;
    }
    return QString{dialecto.texto}.arg(columna.ancho);
}

QString definicion(const ColumnaEsquema& columna, const Dialecto& dialecto)
{
    QString texto = QString{columna.nombre}.toLower() + u' ' + tipo(columna, dialecto);
    if (columna.nulos == Nulos::NoAdmite)
        texto += " NOT NULL"_L1;
    if (columna.tipo == TipoColumna::SiNo)
        texto += " DEFAULT 0"_L1;
    return texto;
}

QString creacion(const TablaEsquema& tabla, const Dialecto& dialecto)
{
    QStringList partes;
    if (!dialecto.orden.isEmpty())
        partes += dialecto.orden;
    for (const ColumnaEsquema& columna : tabla.columnas)
        partes += definicion(columna, dialecto);
    return "CREATE TABLE "_L1 + QString{tabla.nombre}.toLower() + " ("_L1 + partes.join(", "_L1) + u')' + dialecto.cola;
}

/// The name holds the table's: on SQLite and PostgreSQL an index has no other place.
QString indice(QLatin1StringView clase, const TablaEsquema& tabla, QLatin1StringView columna)
{
    const QString nombre = QString{tabla.nombre}.toLower();
    const QString enMinusculas = QString{columna}.toLower();
    return "CREATE %1_%2_%3 ON %2 (%3)"_L1.arg(clase, nombre, enMinusculas);
}

} // namespace

QList<QString> sentenciasDeCreacion(const BaseEsquema& base, Motor motor)
{
    const Dialecto& elegido = dialecto(motor);
    QList<QString> sentencias;
    for (const QLatin1StringView sentencia : elegido.preparacion)
        sentencias += sentencia;
    for (const TablaEsquema& tabla : base.tablas) {
        sentencias += creacion(tabla, elegido);
        if (!tabla.claveUnica.isEmpty())
            sentencias += indice("UNIQUE INDEX clave"_L1, tabla, tabla.claveUnica);
        for (const QLatin1StringView columna : tabla.indices)
            sentencias += indice("INDEX ix"_L1, tabla, columna);
    }
    return sentencias;
}

QList<QString> sentenciasDeBorrado(const BaseEsquema& base, Motor)
{
    QList<QString> sentencias;
    for (const TablaEsquema& tabla : base.tablas)
        sentencias += "DROP TABLE IF EXISTS "_L1 + QString{tabla.nombre}.toLower();
    return sentencias;
}

} // namespace kestrane::instalacion
