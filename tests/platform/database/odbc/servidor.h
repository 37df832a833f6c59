#pragma once

#include "platform/database/entorno_datos.h"
#include "platform/database/error_motor.h"
#include "platform/database/motor.h"
#include "platform/database/odbc/odbc_motor.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace kestrane::database::odbc {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

/// A server of the run that the program stands in, and the form in which texts pass.
struct Caso
{
    const char* nombre;
    jet::Motor motor;
    QString dsn;
    FormaTexto forma = FormaTexto::SegunControlador;
};

inline void PrintTo(const Caso& caso, std::ostream* salida)
{
    *salida << caso.nombre;
}

/// Both servers, PostgreSQL with UTF-16 too.
[[nodiscard]] std::vector<Caso> todosLosCasos();
[[nodiscard]] inline std::string nombreDeCaso(const testing::TestParamInfo<Caso>& info)
{
    return info.param.nombre;
}

/// A field in a form that tells kinds apart.
[[nodiscard]] std::string enPalabras(const Valor& valor);

/// A table `t` of the six types, with the hidden order, made anew for each test.
class Servidor : public testing::TestWithParam<Caso>
{
protected:
    Servidor();

    [[nodiscard]] MotorBase& motor() { return *m_motor; }
    [[nodiscard]] bool esPostgreSql() const { return GetParam().motor == jet::Motor::PostgreSql; }
    /// Another connection to the same database.
    [[nodiscard]] std::unique_ptr<MotorBase> otro(OpcionesOdbc opciones = {}) const;

    /// Runs a statement; returns the rows affected.
    qint64 ejecuta(const QString& sql, std::initializer_list<Ligado> valores = {}, std::vector<TipoColumna> tipos = {});
    static qint64 ejecuta(MotorBase& motor, const QString& sql);
    /// The rows of a query, "|" behind each, "," between fields.
    std::string filas(const QString& sql, std::vector<TipoColumna> resultado);
    std::string filas(SentenciaMotor& sentencia, int columnas, std::initializer_list<Ligado> valores = {});
    /// What the statement is refused with.
    static std::optional<ErrorMotor> error(const std::function<void()>& accion);

    /// `sql` with %1 for each engine's own words.
    [[nodiscard]] QString segun(const char16_t* postgreSql, const char16_t* mariaDb) const
    {
        return QString::fromUtf16(esPostgreSql() ? postgreSql : mariaDb);
    }
    /// The number of this connection's process on the server.
    [[nodiscard]] int numeroDeConexion();
    /// Ends the connection from the server's side.
    void corta(int numero);
    /// The same with all connections to the database but this one.
    void cortaLasDemas();
    /// Options of a program whose data sources all lead to this database.
    [[nodiscard]] OpcionesDatos opcionesDatos() const;
    /// Rows 1 to `hasta` in column a.
    void llena(int hasta);

private:
    std::unique_ptr<MotorBase> m_motor;
};

#define KESTRANE_EN_TODOS(Clase) INSTANTIATE_TEST_SUITE_P(Servidores, Clase, testing::ValuesIn(todosLosCasos()), nombreDeCaso)

} // namespace kestrane::database::odbc
