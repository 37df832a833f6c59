#pragma once

#include "platform/jet/binder.h"
#include "platform/jet/catalogo_prueba.h"
#include "platform/jet/parser.h"
#include "platform/jet/traductor.h"
#include "platform/runtime/soporte.h"

/// Short ways from a text to what the front end makes of it, on the shop of tiendaDePrueba.
namespace kestrane::jet {

[[nodiscard]] inline Resultado<Traduccion, ErrorSql> traduce(const QString& sentencia, Motor motor = Motor::Sqlite)
{
    CatalogoPrueba catalogo = tiendaDePrueba(motor);
    return Traductor{catalogo, motor, ConfiguracionRegional::espania()}.traduce(sentencia);
}

/// The rendered text, or the description of the refusal.
[[nodiscard]] inline QString sqlDe(const QString& sentencia, Motor motor)
{
    const auto traduccion = traduce(sentencia, motor);
    return traduccion ? QString::fromUtf8(traduccion.valor().sql) : describe(traduccion.error(), sentencia);
}

/// What stands behind WHERE in the rendered text of "select codigo from clientes where CONDICION", without the order.
[[nodiscard]] inline QString condicionDe(const QString& condicion, Motor motor, const QString& tabla = QStringLiteral("clientes"))
{
    const QString sql = sqlDe(QStringLiteral("select count(*) from %1 where %2").arg(tabla, condicion), motor);
    return sql.section(QStringLiteral(" WHERE "), 1);
}

/// What the rendered text of "select EXPRESION from ventas" shows.
[[nodiscard]] inline QString expresionDe(const QString& expresion, Motor motor, const QString& tabla = QStringLiteral("ventas"))
{
    const QString sql = sqlDe(QStringLiteral("select %1 as x from %2").arg(expresion, tabla), motor);
    return sql.sliced(7).section(QStringLiteral(", t0."), 0, -2);
}

/// Expects a refusal of that kind at the place where `lugar` stands in the text (its end for an empty one).
inline void rehusaTraducir(const QString& sentencia, ErrorSql::Clase clase, const QString& lugar)
{
    const auto traduccion = traduce(sentencia);
    ASSERT_FALSE(traduccion.bien()) << qPrintable(sentencia);
    const ErrorSql& error = traduccion.error();
    EXPECT_EQ(error.clase, clase) << qPrintable(describe(error, sentencia));
    EXPECT_EQ(sentencia.mid(error.posicion, error.longitud), lugar) << qPrintable(describe(error, sentencia));
}

} // namespace kestrane::jet
