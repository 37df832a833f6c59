#pragma once

#include "platform/database/conexion.h"
#include "platform/database/conformidad/contexto_motor.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <string>

namespace kestrane::database::conformidad {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

// Columns for tables of the tests.
[[nodiscard]] jet::Columna largo(const QString& nombre);
[[nodiscard]] jet::Columna corto(const QString& nombre);
[[nodiscard]] jet::Columna doble(const QString& nombre);
[[nodiscard]] jet::Columna fecha(const QString& nombre);
[[nodiscard]] jet::Columna siNo(const QString& nombre);
[[nodiscard]] jet::Columna texto(const QString& nombre, int ancho = 50);
[[nodiscard]] jet::Columna memo(const QString& nombre);
[[nodiscard]] jet::Columna noNula(jet::Columna columna);

/// A value in a form that tells kinds apart: NULL, -1 and 0 of flags as "si" and "no", dates as "2024-03-05" and times behind them,
/// a bare time as "09:05:00", texts in quotes, doubles with a point.
[[nodiscard]] std::string enPalabras(const Valor& valor);

/// Two empty databases of the engine under test and connections to both.
class Conformidad : public testing::Test
{
protected:
    Conformidad();

    void tabla(const QString& nombre, std::initializer_list<jet::Columna> columnas, Base base = Base::Tienda);
    void tablaConClave(const QString& nombre, std::initializer_list<jet::Columna> columnas, Base base = Base::Tienda);

    /// Opened when first asked for: tables are made before.
    [[nodiscard]] Conexion& tienda() { return abierta(m_tienda, Base::Tienda); }
    [[nodiscard]] Conexion& listados() { return abierta(m_listados, Base::Listados); }
    /// One more connection to the same database, of the same program.
    [[nodiscard]] std::unique_ptr<Conexion> otra(Base base);
    [[nodiscard]] EntornoDatos& entorno() { return *m_entorno; }
    [[nodiscard]] ContextoMotor& contexto() { return *m_contexto; }

    void ejecuta(std::initializer_list<QString> sentencias);
    /// The rows of a query on the shop, "|" behind each, "," between fields.
    [[nodiscard]] std::string filas(const QString& sentencia) { return filas(sentencia, tienda()); }
    [[nodiscard]] std::string filas(const QString& sentencia, Conexion& conexion);
    /// The number of the error that `accion` ends in, 0 when it does not.
    [[nodiscard]] qint32 error(const std::function<void()>& accion);
    [[nodiscard]] qint32 errorDe(const QString& sentencia);
    [[nodiscard]] const QString& ultimaDescripcion() const { return m_descripcion; }

private:
    void crea(const QString& nombre, std::initializer_list<jet::Columna> columnas, Base base, bool conClave);
    [[nodiscard]] Conexion& abierta(Conexion& conexion, Base base);

    std::unique_ptr<ContextoMotor> m_contexto;
    std::unique_ptr<EntornoDatos> m_entorno;
    Conexion m_tienda;
    Conexion m_listados;
    QString m_descripcion;
};

} // namespace kestrane::database::conformidad
